// Whatever the bytes: no crash, and a page in valid UTF-8 whose size keeps to the file's.

#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "services/Utf8.h"
#include "services/rtf/WebPage.h"

namespace {

constexpr std::size_t kMostPageBytesForAByte = 400;
constexpr std::size_t kEmptyPage = 4096;

void Require(bool holds) {
  if (!holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file(reinterpret_cast<const char*>(data), size);
  const auto decoder = [](int /*codePage*/, std::string_view bytes) {
    return std::string(bytes.size() / 2, '?');
  };
  try {
    const auto page = tagsmith::rtf::ConvertToWebPage(
        file, {.title = "t", .generator = "g", .fontName = "Arial", .stem = "s"}, decoder);
    Require(tagsmith::IsValidUtf8(page.html));
    Require(page.html.size() <= kEmptyPage + kMostPageBytesForAByte * size);
    std::size_t pictures = 0;
    for (const auto& picture : page.pictures) pictures += picture.bytes.size();
    Require(pictures <= size);
  } catch (const tagsmith::rtf::NotRtf&) {
  }
  return 0;
}
