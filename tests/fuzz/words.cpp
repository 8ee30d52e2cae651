// Whatever the page: its words stand in order, inside the text and on character borders, a walk
// that is gone on with in a copy finds the same ones.

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "integration/PageWords.h"
#include "services/Utf8.h"

namespace {

using tagsmith::integration::PageWord;
using tagsmith::integration::PageWords;

void Require(bool holds) {
  if (!holds) std::abort();
}

void RequireSame(const std::optional<PageWord>& one, const std::optional<PageWord>& other) {
  Require(one.has_value() == other.has_value());
  if (!one) return;
  Require(one->start == other->start && one->length == other->length);
  Require(one->text == other->text && one->delimiter == other->delimiter);
}

bool IsBorder(std::string_view page, std::size_t position) {
  return tagsmith::SnapToCharacter(page, position) == position;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view page(reinterpret_cast<const char*>(data), size);
  PageWords walk(page, {.pageTextOnly = size % 8 != 0, .passOverDigits = size % 4 != 0});
  std::size_t behind = 0;
  for (;;) {
    PageWords copy = walk;
    const std::optional<PageWord> word = walk.Next();
    RequireSame(word, copy.Next());
    if (!word) break;
    Require(word->start >= behind && word->length > 0);
    behind = word->start + word->length;
    Require(behind <= page.size() && !word->text.empty());
    Require(IsBorder(page, word->start) && IsBorder(page, behind));
    Require(tagsmith::IsValidUtf8(word->text));
    const std::string_view written = page.substr(word->start, word->length);
    Require(written.find('<') == std::string_view::npos);
    Require(!WrittenAs("\u00E9 '\"<&", *word, written).empty());
  }
  Require(!walk.Next());
  return 0;
}
