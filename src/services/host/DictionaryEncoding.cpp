#include "services/host/DictionaryEncoding.h"

#include <algorithm>

#include "services/Utf8.h"

namespace tagsmith {
namespace {

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The C library's name for an encoding.
std::string PlatformName(const std::string& name) {
  constexpr std::string_view kVendor = "microsoft-";
  if (name.starts_with(kVendor)) return name.substr(kVendor.size());
  return name == "TIS620-2533" ? "TIS620" : name;
}

bool ConvertAll(const Iconv& conversion, std::string_view text, std::string& into) {
  conversion.Convert(text, into);
  return text.empty();
}

}  // namespace

DictionaryEncoding::DictionaryEncoding(const std::string& name)
    : isUtf8_(name == "UTF-8"),
      encoder_(PlatformName(name), "UTF-8"),
      decoder_("UTF-8", PlatformName(name)) {}

bool DictionaryEncoding::Encode(std::string_view word, std::string& into) const {
  if (IsAscii(word) || (isUtf8_ && IsValidUtf8(word))) {
    into.assign(word);
    return true;
  }
  into.clear();
  return !isUtf8_ && ConvertAll(encoder_, word, into);
}

std::optional<std::string> DictionaryEncoding::Decode(std::string_view bytes) const {
  if (IsAscii(bytes) || (isUtf8_ && IsValidUtf8(bytes))) return std::string(bytes);
  std::string text;
  const bool isText = !isUtf8_ && ConvertAll(decoder_, bytes, text);
  return isText ? std::optional(text) : std::nullopt;
}

}  // namespace tagsmith
