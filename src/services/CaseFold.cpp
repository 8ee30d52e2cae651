#include "services/CaseFold.h"

#include <algorithm>
#include <iterator>

#include "services/CaseFoldTable.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

constexpr char32_t FoldAscii(char32_t codePoint) {
  return codePoint >= 'A' && codePoint <= 'Z' ? codePoint + ('a' - 'A') : codePoint;
}

// Reads the folded characters of a text one by one. A byte that is no UTF-8 counts as a character
// of its own, above all others.
class FoldedReader {
 public:
  explicit FoldedReader(std::string_view text) : text_(text) {}

  bool AtEnd() const { return position_ >= text_.size(); }

  char32_t Next() {
    constexpr char32_t kBehindUnicode = 0x110000;
    const DecodedChar character = DecodeUtf8(text_, position_);
    if (character.length == 0) {
      return kBehindUnicode + static_cast<unsigned char>(text_[position_++]);
    }
    position_ += character.length;
    return FoldCase(character.codePoint);
  }

 private:
  std::string_view text_;
  std::size_t position_ = 0;
};

// Below, at or above 0 as `left` stands before, level with or behind `right`.
int CompareWithoutCase(std::string_view left, std::string_view right) {
  FoldedReader a(left);
  FoldedReader b(right);
  while (!a.AtEnd() && !b.AtEnd()) {
    const char32_t x = a.Next();
    const char32_t y = b.Next();
    if (x != y) return x < y ? -1 : 1;
  }
  return static_cast<int>(!a.AtEnd()) - static_cast<int>(!b.AtEnd());
}

}  // namespace

char32_t FoldCase(char32_t codePoint) {
  if (codePoint < 0x80) return FoldAscii(codePoint);
  const auto runs = CaseFoldRuns();
  const auto behind =
      std::upper_bound(runs.begin(), runs.end(), codePoint,
                       [](char32_t value, const CaseFoldRun& run) { return value < run.first; });
  if (behind == runs.begin()) return codePoint;
  const CaseFoldRun& run = *std::prev(behind);
  if (codePoint > run.last || (codePoint - run.first) % run.step != 0) return codePoint;
  return static_cast<char32_t>(static_cast<std::int32_t>(codePoint) + run.offset);
}

std::string FoldCase(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const DecodedChar character = DecodeUtf8(text, i);
    if (character.length == 0) {
      folded += text[i++];
    } else {
      AppendUtf8(folded, FoldCase(character.codePoint));
      i += character.length;
    }
  }
  return folded;
}

bool LessWithoutCase(std::string_view left, std::string_view right) {
  const int order = CompareWithoutCase(left, right);
  return order != 0 ? order < 0 : left < right;
}

bool EqualWithoutCase(std::string_view left, std::string_view right) {
  return CompareWithoutCase(left, right) == 0;
}

}  // namespace tagsmith
