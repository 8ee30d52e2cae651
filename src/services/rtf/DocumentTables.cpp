#include "services/rtf/DocumentTables.h"

#include <algorithm>
#include <cctype>
#include <cstddef>

#include "services/rtf/ByteCollector.h"
#include "services/rtf/CodePages.h"

namespace tagsmith::rtf {
namespace {

constexpr int kSymbolCodePage = 42;
constexpr int kOutlineLevels = 9;
constexpr int kHeadings = 6;

// "heading 1" to "heading 9", as English versions name their styles in any case. Other names of the
// same style may follow behind commas.
int HeadingOfStyleName(std::string_view name) {
  constexpr std::string_view kHeading = "heading ";
  name = name.substr(0, name.find(','));
  if (name.size() != kHeading.size() + 1) return 0;
  for (std::size_t i = 0; i < kHeading.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(name[i])) != kHeading[i]) return 0;
  }
  return HeadingOfOutlineLevel(name.back() - '1');
}

// Calls `take` for each piece of `text` and `finish` at each semicolon.
template <typename Take, typename Finish>
void ForEachEntry(std::string_view text, Take take, Finish finish) {
  for (;;) {
    const std::size_t end = text.find(';');
    take(text.substr(0, end));
    if (end == std::string_view::npos) return;
    finish();
    text.remove_prefix(end + 1);
  }
}

}  // namespace

int HeadingOfOutlineLevel(int level) {
  return level >= 0 && level < kOutlineLevels ? std::min(level + 1, kHeadings) : 0;
}

void FontTable::Begin(int number) {
  Finish();
  isOpen_ = true;
  number_ = number;
}

int FontTable::NameCodePage() const { return codePage_ == kSymbolCodePage ? 0 : codePage_; }

void FontTable::AddText(std::string_view text) {
  ForEachEntry(
      text, [this](std::string_view piece) { AppendLimited(name_, piece, kMostNameBytes); },
      [this] { Finish(); });
}

void FontTable::Finish() {
  if (isOpen_) {
    const int index = static_cast<int>(fonts_.size());
    SymbolSet symbols = SymbolSetOfFont(name_);
    if (symbols == SymbolSet::kNone && codePage_ == kSymbolCodePage) symbols = SymbolSet::kOther;
    fonts_.push_back({codePage_, symbols});
    indexes_[number_] = index;
    sink_.AddFont(index, name_, family_);
  }
  isOpen_ = false;
  codePage_ = 0;
  family_ = {};
  name_.clear();
}

int FontTable::Find(int number) const {
  const auto found = indexes_.find(number);
  return found == indexes_.end() ? kAbsent : found->second;
}

const Font& FontTable::At(int index) const {
  static constexpr Font kNoFont;
  return index == kAbsent ? kNoFont : fonts_[static_cast<std::size_t>(index)];
}

void ColourTable::SetComponent(int component, int value) {
  components_[static_cast<std::size_t>(component)] = std::clamp(value, 0, 255);
  hasComponent_ = true;
}

void ColourTable::AddText(std::string_view text) {
  for (auto entries = std::ranges::count(text, ';'); entries > 0; --entries) {
    const auto [red, green, blue] = components_;
    colours_.push_back(hasComponent_ ? red * 0x10000 + green * 0x100 + blue : kAbsent);
    components_ = {};
    hasComponent_ = false;
  }
}

Colour ColourTable::At(int number) const {
  const auto index = static_cast<std::size_t>(number);
  return number >= 0 && index < colours_.size() ? colours_[index] : kAbsent;
}

void StyleSheet::BeginParagraphStyle(int number) {
  number_ = number;
  base_ = kAbsent;
  heading_ = kAbsent;
  name_.clear();
}

void StyleSheet::BeginOtherStyle() { BeginParagraphStyle(kAbsent); }

void StyleSheet::AddText(std::string_view text) {
  ForEachEntry(
      text, [this](std::string_view piece) { AppendLimited(name_, piece, kMostNameBytes); },
      [this] { Finish(); });
}

void StyleSheet::Finish() {
  int heading = HeadingOfStyleName(name_);
  if (heading == 0) heading = heading_ != kAbsent ? heading_ : HeadingOf(base_);
  if (number_ != kAbsent && heading != 0) headings_[number_] = heading;
  BeginParagraphStyle(0);  // The style that names no number is 0.
}

int StyleSheet::HeadingOf(int number) const {
  const auto found = headings_.find(number);
  return found == headings_.end() ? 0 : found->second;
}

}  // namespace tagsmith::rtf
