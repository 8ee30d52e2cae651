#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

/// The fonts, sizes and colours of a document's text, each combination once, with how much text
/// has it.
class CharacterStyles {
 public:
  /// `fontName` is the font of text whose own is not named.
  explicit CharacterStyles(std::string_view fontName) : fontName_(fontName) {}

  void AddFont(int number, std::string_view name, std::string_view family);

  /// The number of the combination that `format` has; numbers count from 0.
  std::uint32_t NumberOf(const CharacterFormat& format);

  void CountText(std::uint32_t number, std::size_t length) { styles_[number].textLength += length; }

  /// Finds the font and size that most text has: the page's own. Nothing is added afterwards.
  void ChoosePageFont();

  /// The page's font as declarations of a style sheet.
  std::string PageFont() const;

  /// The start tags by number; empty where the text looks as the page's own. Appends the rules of a
  /// style sheet that they need to `rules`.
  std::vector<std::string> StartTags(std::string& rules) const;

 private:
  struct Look {
    int font = kAbsent;
    int halfPoints = 0;
    Colour colour = kAbsent;
    Colour background = kAbsent;
    bool smallCaps = false;
    bool allCaps = false;

    bool operator==(const Look&) const = default;
  };
  struct LookHash {
    std::size_t operator()(const Look& look) const;
  };
  struct Style {
    Look look;
    std::size_t textLength = 0;
  };
  struct Font {
    std::string name;
    std::string family;
  };

  static Look LookOf(const CharacterFormat& format);
  std::string FamilyOf(int font) const;
  std::string StyleOf(const Look& look, std::string_view family) const;
  static std::string StartTag(std::string_view attribute, std::size_t number, std::string& rules);

  std::string fontName_;
  std::unordered_map<int, Font> fonts_;
  std::unordered_map<Look, std::uint32_t, LookHash> numbers_;
  std::vector<Style> styles_;
  std::uint32_t last_ = 0;
  int pageFont_ = kAbsent;
  int pageHalfPoints_ = 24;
};

}  // namespace tagsmith::rtf
