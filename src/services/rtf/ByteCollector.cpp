#include "services/rtf/ByteCollector.h"

#include <algorithm>
#include <cstddef>

#include "services/Utf8.h"
#include "services/rtf/CodePages.h"

namespace tagsmith::rtf {
namespace {

constexpr int kUtf8 = 65001;
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

// Lead bytes as in Microsoft's tables of the code pages. Those of 1361 lie inside the others'.
bool IsLeadByte(int codePage, unsigned char byte) {
  if (codePage == kUtf8) return false;
  if (codePage == 932) return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
  return byte >= 0x81 && byte <= 0xFE;
}

// Keeps what a text may hold; every byte that is no UTF-8 becomes U+FFFD.
std::string Cleaned(std::string_view text) {
  std::string cleaned;
  cleaned.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const DecodedChar next = DecodeUtf8(text, i);
    if (next.length == 0) {
      cleaned += kReplacement;
    } else if (IsTextCharacter(next.codePoint)) {
      cleaned += text.substr(i, next.length);
    }
    i += std::max<std::size_t>(next.length, 1);
  }
  return cleaned;
}

// ASCII, and U+FFFD for all other characters.
std::string WithoutDecoder(int codePage, std::string_view bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    if (byte < 0x80) {
      text += bytes[i];
    } else {
      text += kReplacement;
      if (IsLeadByte(codePage, byte)) ++i;
    }
  }
  return text;
}

}  // namespace

void AppendLimited(std::string& text, std::string_view piece, std::size_t most) {
  const std::size_t left = most - std::min(most, text.size());
  text += piece.substr(0, SnapToCharacter(piece, left));
}

void ByteCollector::Add(int codePage, unsigned char byte) {
  if (codePage != codePage_) ChangeCodePage(codePage);
  if (isMultiByte_) {
    bytes_ += static_cast<char>(byte);
    isInsideCharacter_ = !isInsideCharacter_ && IsLeadByte(codePage, byte);
    return;
  }
  const char32_t character = CharacterOf(byte);
  if (IsTextCharacter(character)) AppendUtf8(text_, character);
}

void ByteCollector::ChangeCodePage(int codePage) {
  codePage_ = codePage;
  isMultiByte_ = codePage == kUtf8 || IsMultiByte(codePage);
  characters_ = {};
}

char32_t ByteCollector::CharacterOf(unsigned char byte) {
  char32_t& character = characters_[byte];
  if (character == 0) character = FromCodePage(codePage_, byte);
  return character;
}

std::string_view ByteCollector::Take() {
  taken_ = isMultiByte_ ? Cleaned(Decode()) : text_;
  bytes_.clear();
  text_.clear();
  isInsideCharacter_ = false;
  return taken_;
}

std::string ByteCollector::Decode() const {
  if (codePage_ == kUtf8) return bytes_;
  return decoder_ ? decoder_(codePage_, bytes_) : WithoutDecoder(codePage_, bytes_);
}

}  // namespace tagsmith::rtf
