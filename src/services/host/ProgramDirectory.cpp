#include "services/host/ProgramDirectory.h"

#include <filesystem>
#include <system_error>

#include "services/host/DriveMap.h"
#include "services/host/HostError.h"

namespace tagsmith {

std::string ProgramDirectory() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (error) throw SystemError(error.value());
  return DriveMap::ToSystemPath(program.parent_path().native());
}

}  // namespace tagsmith
