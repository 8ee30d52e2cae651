#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tagsmith {

/// One character read from a UTF-8 text. `length` is its length in bytes, 0 where the bytes are
/// not valid UTF-8 (The Unicode Standard, section 3.9, table 3-7).
struct DecodedChar {
  char32_t codePoint = 0;
  std::size_t length = 0;
};

/// The character that starts at byte `position`, which is less than `text.size()`.
DecodedChar DecodeUtf8(std::string_view text, std::size_t position);

/// Appends the UTF-8 form of `codePoint` to `text`.
void AppendUtf8(std::string& text, char32_t codePoint);

/// What a text in UTF-8 may begin with to tell that it is UTF-8 (The Unicode Standard,
/// section 23.8).
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The page with a byte order mark in front if it holds more than ASCII, for a page (UTF-8) that
/// names no encoding.
std::string WithByteOrderMark(std::string page);

bool IsValidUtf8(std::string_view text);

/// The start of the character that byte `position` falls into; positions behind the text give its
/// length.
std::size_t SnapToCharacter(std::string_view text, std::size_t position);

}  // namespace tagsmith
