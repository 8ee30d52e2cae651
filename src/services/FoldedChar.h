#pragma once

#include <cstddef>
#include <string_view>

#include "services/CaseFold.h"
#include "services/Utf8.h"

namespace tagsmith {

/// One character of a text where case does not count. A byte that is no UTF-8 is a character of its
/// own, above all of Unicode. `length` is in bytes, at least 1.
struct FoldedChar {
  char32_t value = 0;
  std::size_t length = 1;

  bool operator==(const FoldedChar&) const = default;
};

/// The character that starts at byte `position` of `text` (UTF-8), which is less than
/// `text.size()`.
inline FoldedChar ReadFolded(std::string_view text, std::size_t position) {
  constexpr char32_t kBehindUnicode = 0x110000;
  const auto byte = static_cast<unsigned char>(text[position]);
  if (byte < 0x80) {
    const bool isCapital = byte >= 'A' && byte <= 'Z';
    return {isCapital ? byte + U'a' - U'A' : char32_t{byte}, 1};
  }
  const DecodedChar character = DecodeUtf8(text, position);
  if (character.length == 0) return {kBehindUnicode + byte, 1};
  return {FoldCase(character.codePoint), character.length};
}

}  // namespace tagsmith
