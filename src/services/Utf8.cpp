#include "services/Utf8.h"

#include <cstdint>
#include <cstring>

namespace tagsmith {
namespace {

unsigned char ByteAt(std::string_view text, std::size_t position) {
  return position < text.size() ? static_cast<unsigned char>(text[position]) : 0;
}

bool IsContinuation(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

struct Range {
  unsigned char low;
  unsigned char high;
};

// What may stand second: it keeps out overlong forms, surrogates and values past U+10FFFF.
Range SecondByteRange(unsigned char lead) {
  switch (lead) {
    case 0xE0:
      return {0xA0, 0xBF};
    case 0xED:
      return {0x80, 0x9F};
    case 0xF0:
      return {0x90, 0xBF};
    case 0xF4:
      return {0x80, 0x8F};
    default:
      return {0x80, 0xBF};
  }
}

std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

// The first position from `position` on that holds no ASCII character, or the text's length.
std::size_t SkipAscii(std::string_view text, std::size_t position) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080U;
  std::uint64_t word = 0;
  while (position + sizeof word <= text.size()) {
    std::memcpy(&word, text.data() + position, sizeof word);
    if ((word & kHighBits) != 0) break;
    position += sizeof word;
  }
  while (position < text.size() && ByteAt(text, position) < 0x80) ++position;
  return position;
}

}  // namespace

DecodedChar DecodeUtf8(std::string_view text, std::size_t position) {
  const unsigned char lead = ByteAt(text, position);
  const std::size_t length = SequenceLength(lead);
  if (length <= 1) return {lead, length};

  const Range second = SecondByteRange(lead);
  const unsigned char next = ByteAt(text, position + 1);
  if (next < second.low || next > second.high) return {};

  char32_t codePoint = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned char byte = ByteAt(text, position + i);
    if (!IsContinuation(byte)) return {};
    codePoint = (codePoint << 6U) | (byte & 0x3FU);
  }
  return {codePoint, length};
}

void AppendUtf8(std::string& text, char32_t codePoint) {
  const auto append = [&text](char32_t value) { text += static_cast<char>(value); };
  if (codePoint < 0x80) {
    append(codePoint);
  } else if (codePoint < 0x800) {
    append(0xC0U | (codePoint >> 6U));
    append(0x80U | (codePoint & 0x3FU));
  } else if (codePoint < 0x10000) {
    append(0xE0U | (codePoint >> 12U));
    append(0x80U | ((codePoint >> 6U) & 0x3FU));
    append(0x80U | (codePoint & 0x3FU));
  } else {
    append(0xF0U | (codePoint >> 18U));
    append(0x80U | ((codePoint >> 12U) & 0x3FU));
    append(0x80U | ((codePoint >> 6U) & 0x3FU));
    append(0x80U | (codePoint & 0x3FU));
  }
}

std::string WithByteOrderMark(std::string page) {
  if (SkipAscii(page, 0) < page.size()) page.insert(0, kByteOrderMark);
  return page;
}

bool IsValidUtf8(std::string_view text) {
  for (std::size_t i = SkipAscii(text, 0); i < text.size(); i = SkipAscii(text, i)) {
    const std::size_t length = DecodeUtf8(text, i).length;
    if (length == 0) return false;
    i += length;
  }
  return true;
}

std::size_t SnapToCharacter(std::string_view text, std::size_t position) {
  if (position >= text.size()) return text.size();
  for (std::size_t back = 0; back <= 3 && back <= position; ++back) {
    const std::size_t start = position - back;
    if (IsContinuation(ByteAt(text, start))) continue;
    return DecodeUtf8(text, start).length > back ? start : position;
  }
  return position;
}

}  // namespace tagsmith
