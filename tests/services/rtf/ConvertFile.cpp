// Converts one Rich Text Format file, as the system does: rtf_convert IN OUT, two host paths.

#include <cstdlib>
#include <filesystem>
#include <iostream>

#include "services/Error.h"
#include "services/host/DriveMap.h"
#include "services/host/HostFiles.h"
#include "services/host/HostRtfConversion.h"

namespace {

std::string SystemPath(const char* hostPath) {
  return tagsmith::DriveMap::ToSystemPath(std::filesystem::absolute(hostPath).string());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: rtf_convert IN OUT\n";
    return EXIT_FAILURE;
  }
  try {
    tagsmith::HostFiles files;
    tagsmith::HostRtfConversion conversion(files);
    conversion.ScroogeConvertFile(SystemPath(argv[1]), SystemPath(argv[2]), 0, "rtf_convert", "0",
                                  "0", "Arial", 0);
  } catch (const tagsmith::Error& error) {
    std::cerr << argv[1] << ": " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
