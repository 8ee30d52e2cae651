#include "core/EditorFont.h"

#include <array>
#include <charconv>
#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/SettingsKeys.h"
#include "core/general1.h"
#include "services/CaseFold.h"

namespace tagsmith {
namespace {

// The usual conversion of a text to a flag: the word in any case, or a number.
bool IsTrue(std::string_view text) {
  return EqualWithoutCase(Trim(text), settings::kTrue) || Val(text) != 0;
}

std::string_view FlagText(bool flag) { return flag ? settings::kTrue : settings::kFalse; }

// Points, with as many digits as it takes to read the same number back.
std::string SizeText(double size) {
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), size, std::chars_format::fixed).ptr;
  return {text.data(), end};
}

}  // namespace

FontSpec ReadEditorFont(const Application& application) {
  const auto isSet = [&](const Setting& setting) {
    return IsTrue(application.GetSetting(setting));
  };
  FontSpec font;
  font.bold = isSet(settings::kFontBold);
  font.strikeThru = isSet(settings::kFontStrikeThru);
  font.name = application.GetSetting(settings::kFontName);
  const double size = Val(application.GetSetting(settings::kFontSize));
  if (size > 0) font.size = size;
  font.underline = isSet(settings::kFontUnderline);
  font.italic = isSet(settings::kFontItalic);
  return font;
}

void SaveEditorFont(Application& application, const FontSpec& font) {
  application.SaveSetting(settings::kFontBold, FlagText(font.bold));
  application.SaveSetting(settings::kFontStrikeThru, FlagText(font.strikeThru));
  application.SaveSetting(settings::kFontName, font.name);
  application.SaveSetting(settings::kFontSize, SizeText(font.size));
  application.SaveSetting(settings::kFontUnderline, FlagText(font.underline));
  application.SaveSetting(settings::kFontItalic, FlagText(font.italic));
}

}  // namespace tagsmith
