#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "services/rtf/Reader.h"

namespace tagsmith::rtf {

/// Makes a text of bytes, whose meaning depends on their code page and their neighbours. All bytes
/// between two calls of `Take` are of one code page.
class ByteCollector {
 public:
  explicit ByteCollector(const MultiByteDecoder& decoder) : decoder_(decoder) {}

  void Add(int codePage, unsigned char byte);
  bool IsEmpty() const { return bytes_.empty() && text_.empty(); }
  /// Whether the next byte is the second one of a character, whatever it looks like.
  bool IsInsideCharacter() const { return isInsideCharacter_; }
  /// What came so far, as valid UTF-8 without control characters; good until the next call.
  std::string_view Take();

 private:
  void ChangeCodePage(int codePage);
  char32_t CharacterOf(unsigned char byte);
  std::string Decode() const;

  const MultiByteDecoder& decoder_;
  std::string bytes_;  // Of a code page with characters of several bytes.
  std::string text_;   // Of any other.
  std::string taken_;
  int codePage_ = 0;
  bool isMultiByte_ = false;
  bool isInsideCharacter_ = false;
  std::array<char32_t, 256> characters_{};  // As far as they have been asked for.
};

/// What a name of a font, a style or a bookmark may have; what is longer is damage.
constexpr std::size_t kMostNameBytes = 255;

/// Appends as many whole characters of `piece` (UTF-8) as leave `text` within `most` bytes.
void AppendLimited(std::string& text, std::string_view piece, std::size_t most);

/// Whether a text may hold `codePoint`: a Unicode character that controls nothing.
constexpr bool IsTextCharacter(char32_t codePoint) {
  const bool isControl = codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
  const bool isSurrogate = codePoint >= 0xD800 && codePoint < 0xE000;
  return !isControl && !isSurrogate && codePoint <= 0x10FFFF;
}

}  // namespace tagsmith::rtf
