#include "services/TextEncoding.h"

#include <array>
#include <optional>
#include <utility>

#include "services/Utf8.h"

namespace tagsmith {
namespace {

constexpr char32_t kFirstSpecialByte = 0x80;

// Bytes 0x80 to 0x9F; all others stand for the code point of their own value, as do the five that
// the code page leaves open.
constexpr std::array<char32_t, 32> kSpecialCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t FromWindows1252(unsigned char byte) {
  const std::size_t special = byte - kFirstSpecialByte;
  return byte >= kFirstSpecialByte && special < kSpecialCharacters.size()
             ? kSpecialCharacters[special]
             : byte;
}

std::optional<char> ToWindows1252(char32_t codePoint) {
  if (codePoint < kFirstSpecialByte || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
    return static_cast<char>(codePoint);
  }
  for (std::size_t i = 0; i < kSpecialCharacters.size(); ++i) {
    if (kSpecialCharacters[i] == codePoint) return static_cast<char>(kFirstSpecialByte + i);
  }
  return std::nullopt;
}

std::optional<std::string> ToWindows1252(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const DecodedChar character = DecodeUtf8(text, i);
    const std::optional<char> byte = ToWindows1252(character.codePoint);
    if (character.length == 0 || !byte) return std::nullopt;
    bytes += *byte;
    i += character.length;
  }
  return bytes;
}

}  // namespace

DecodedText DecodeText(std::string bytes) {
  if (IsValidUtf8(bytes)) return {std::move(bytes), TextEncoding::kUtf8};
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) AppendUtf8(text, FromWindows1252(static_cast<unsigned char>(byte)));
  return {std::move(text), TextEncoding::kWindows1252};
}

std::string EncodeText(std::string_view text, TextEncoding& encoding) {
  if (encoding == TextEncoding::kWindows1252) {
    std::optional<std::string> bytes = ToWindows1252(text);
    if (bytes && (*bytes == text || !IsValidUtf8(*bytes))) return *std::move(bytes);
    encoding = TextEncoding::kUtf8;
  }
  return std::string(text);
}

}  // namespace tagsmith
