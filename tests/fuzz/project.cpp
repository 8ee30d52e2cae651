// Whatever the bytes: no crash; and what was read is read again from the file that it makes.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "generators/PhpProjectFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto project = tagsmith::generators::ReadProject(text);
  if (!project) return 0;
  const auto again =
      tagsmith::generators::ReadProject(tagsmith::generators::WriteProject(*project));
  if (!again || *again != *project) std::abort();
  return 0;
}
