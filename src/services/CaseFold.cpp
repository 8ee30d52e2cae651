#include "services/CaseFold.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "services/CaseFoldTable.h"
#include "services/FoldedChar.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

constexpr char32_t FoldAscii(char32_t codePoint) {
  return codePoint >= 'A' && codePoint <= 'Z' ? codePoint + ('a' - 'A') : codePoint;
}

// Reads the folded characters of a text one by one.
class FoldedReader {
 public:
  explicit FoldedReader(std::string_view text) : text_(text) {}

  bool AtEnd() const { return position_ >= text_.size(); }

  char32_t Next() {
    const FoldedChar character = ReadFolded(text_, position_);
    position_ += character.length;
    return character.value;
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

// `text` with every character folded, and `mark` before each byte that is no UTF-8.
std::string Folded(std::string_view text, std::string_view mark) {
  std::string folded;
  folded.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const DecodedChar character = DecodeUtf8(text, i);
    if (character.length == 0) {
      folded.append(mark) += text[i++];
    } else {
      AppendUtf8(folded, FoldCase(character.codePoint));
      i += character.length;
    }
  }
  return folded;
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

std::string FoldCase(std::string_view text) { return Folded(text, {}); }

bool LessWithoutCase(std::string_view left, std::string_view right) {
  const int order = CompareWithoutCase(left, right);
  return order != 0 ? order < 0 : left < right;
}

void SortWithoutCase(std::vector<std::string>& texts) {
  // The bytes of UTF-8 are in the order of its code points, and 0xFF is none of them.
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(texts.size());
  for (std::string& text : texts) {
    std::string key = Folded(text, "\xFF");
    keyed.emplace_back(std::move(key), std::move(text));
  }
  std::sort(keyed.begin(), keyed.end());
  std::transform(keyed.begin(), keyed.end(), texts.begin(),
                 [](auto& entry) { return std::move(entry.second); });
}

bool EqualWithoutCase(std::string_view left, std::string_view right) {
  return CompareWithoutCase(left, right) == 0;
}

}  // namespace tagsmith
