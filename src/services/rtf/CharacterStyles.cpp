#include "services/rtf/CharacterStyles.h"

#include <algorithm>
#include <map>
#include <utility>

#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

constexpr int kTwipsOfHalfPoint = 10;
constexpr int kLargestHalfPoints = 3276;
constexpr Colour kBlack = 0;

constexpr std::size_t kLongestName = 255;

// Longer ones stand once in the style sheet.
constexpr std::size_t kLongestStyle = 120;

int TwipsOf(int halfPoints) {
  return std::clamp(halfPoints, 1, kLargestHalfPoints) * kTwipsOfHalfPoint;
}

}  // namespace

std::size_t CharacterStyles::LookHash::operator()(const Look& look) const {
  std::uint64_t hash = 0;
  for (const int part : {look.font, look.halfPoints, look.colour, look.background,
                         look.smallCaps ? 1 : 0, look.allCaps ? 1 : 0}) {
    hash = (hash ^ static_cast<std::uint32_t>(part)) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 29U;
  }
  return hash;
}

void CharacterStyles::AddFont(int number, std::string_view name, std::string_view family) {
  fonts_[number] = {std::string(name.size() <= kLongestName ? name : ""), std::string(family)};
}

CharacterStyles::Look CharacterStyles::LookOf(const CharacterFormat& format) {
  Look look{format.font,       format.halfPoints, format.colour,
            format.background, format.smallCaps,  format.allCaps};
  // Black is the page's own, and says something in a link only.
  if (look.colour == kBlack && format.link == kAbsent) look.colour = kAbsent;
  return look;
}

std::uint32_t CharacterStyles::NumberOf(const CharacterFormat& format) {
  const Look look = LookOf(format);
  if (last_ < styles_.size() && styles_[last_].look == look) return last_;
  const auto number = static_cast<std::uint32_t>(styles_.size());
  const auto [found, isNew] = numbers_.try_emplace(look, number);
  if (isNew) styles_.push_back({look, 0});
  last_ = found->second;
  return last_;
}

void CharacterStyles::ChoosePageFont() {
  std::map<std::pair<int, int>, std::size_t> lengths;
  std::size_t longest = 0;
  for (const Style& style : styles_) {
    const std::pair font{style.look.font, style.look.halfPoints};
    std::size_t& length = lengths[font];
    length += style.textLength;
    if (length <= longest) continue;
    longest = length;
    pageFont_ = font.first;
    pageHalfPoints_ = font.second;
  }
}

// The names that a style sheet tells, the wanted one first; empty where none is known.
std::string CharacterStyles::FamilyOf(int font) const {
  const auto found = fonts_.find(font);
  const bool isNamed = found != fonts_.end() && !found->second.name.empty();
  const std::string& name = isNamed ? found->second.name : fontName_;
  std::string family;
  if (!name.empty()) AppendCssString(family, name);
  if (found != fonts_.end() && !found->second.family.empty()) {
    if (!family.empty()) family += ',';
    family += found->second.family;
  }
  return family;
}

std::string CharacterStyles::PageFont() const {
  const std::string family = FamilyOf(pageFont_);
  std::string font;
  if (!family.empty()) font += "font-family:" + family + ';';
  font += "font-size:";
  AppendPoints(font, TwipsOf(pageHalfPoints_));
  return font;
}

std::string CharacterStyles::StyleOf(const Look& look, std::string_view family) const {
  std::string attribute;
  StyleAttribute style(attribute);
  if (look.font != pageFont_ && !family.empty()) style.Add("font-family", family);
  if (look.halfPoints != pageHalfPoints_) style.AddPoints("font-size", TwipsOf(look.halfPoints));
  if (look.colour != kAbsent) style.AddColour("color", look.colour);
  if (look.background != kAbsent) style.AddColour("background-color", look.background);
  if (look.smallCaps) style.Add("font-variant", "small-caps");
  if (look.allCaps) style.Add("text-transform", "uppercase");
  style.Close();
  return attribute;
}

// A long style becomes a rule, since many runs may have it.
std::string CharacterStyles::StartTag(std::string_view attribute, std::size_t number,
                                      std::string& rules) {
  constexpr std::string_view kBegin = " style=\"";
  if (attribute.empty()) return {};
  if (attribute.size() <= kLongestStyle) return "<span" + std::string(attribute) + '>';
  attribute.remove_prefix(kBegin.size());
  attribute.remove_suffix(1);
  const std::string name = 's' + std::to_string(number);
  rules += '.' + name + '{';
  rules += attribute;
  rules += '}';
  rules += kLineEnd;
  return "<span class=\"" + name + "\">";
}

std::vector<std::string> CharacterStyles::StartTags(std::string& rules) const {
  std::unordered_map<int, std::string> families;
  std::vector<std::string> tags;
  tags.reserve(styles_.size());
  for (const Style& style : styles_) {
    const auto [family, isNew] = families.try_emplace(style.look.font);
    if (isNew) family->second = FamilyOf(style.look.font);
    tags.push_back(StartTag(StyleOf(style.look, family->second), tags.size() + 1, rules));
  }
  return tags;
}

}  // namespace tagsmith::rtf
