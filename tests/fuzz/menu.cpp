// Whatever the menu text: no crash, and the page grows with it in proportion.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "generators/MenuPage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kMostPageBytesForAByte = 1000;
  constexpr std::size_t kEmptyPage = 4096;
  const std::string_view menu(reinterpret_cast<const char*>(data), size);
  const std::string page = tagsmith::generators::MenuPage(menu);
  if (page.size() > kEmptyPage + kMostPageBytesForAByte * size) std::abort();
  return 0;
}
