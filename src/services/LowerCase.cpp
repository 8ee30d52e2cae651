#include "services/LowerCase.h"

#include <algorithm>

#include "services/CaseFold.h"
#include "services/CaseFoldTable.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

// The Unicode Character Database 14.0: where UnicodeData.txt, field 13, is another character than
// CaseFolding.txt tells. Nearly all are small letters that fold to one of their variants.
constexpr CaseFoldRun kUnlikeFolding[] = {
    {0x00B5, 0x00B5, 1, 0},     {0x0130, 0x0130, 1, -199}, {0x017F, 0x017F, 1, 0},
    {0x0345, 0x0345, 1, 0},     {0x03C2, 0x03C2, 1, 0},    {0x03D0, 0x03D1, 1, 0},
    {0x03D5, 0x03D6, 1, 0},     {0x03F0, 0x03F1, 1, 0},    {0x03F5, 0x03F5, 1, 0},
    {0x13A0, 0x13EF, 1, 38864}, {0x13F0, 0x13F5, 1, 8},    {0x13F8, 0x13FD, 1, 0},
    {0x1C80, 0x1C88, 1, 0},     {0x1E9B, 0x1E9B, 1, 0},    {0x1FBE, 0x1FBE, 1, 0},
    {0xAB70, 0xABBF, 1, 0},
};

char32_t LowerCase(char32_t codePoint) {
  const auto* const run = std::ranges::find_if(kUnlikeFolding, [codePoint](const auto& candidate) {
    return codePoint >= candidate.first && codePoint <= candidate.last;
  });
  if (run == std::end(kUnlikeFolding)) return FoldCase(codePoint);
  return static_cast<char32_t>(static_cast<std::int32_t>(codePoint) + run->offset);
}

}  // namespace

std::string LowerCase(std::string_view text) {
  std::string lower;
  lower.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const char byte = text[i];
    const bool isAscii = static_cast<unsigned char>(byte) < 0x80;
    const DecodedChar character = isAscii ? DecodedChar{} : DecodeUtf8(text, i);
    if (character.length == 0) {
      lower += byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
      ++i;
    } else {
      AppendUtf8(lower, LowerCase(character.codePoint));
      i += character.length;
    }
  }
  return lower;
}

}  // namespace tagsmith
