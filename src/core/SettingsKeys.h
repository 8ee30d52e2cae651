#pragma once

#include <string_view>

namespace tagsmith {

/// One place in the settings store and what is taken when it is absent. All values are texts. A key
/// that stands for a row of settings is completed by a number.
struct Setting {
  std::string_view section;
  std::string_view key;
  std::string_view fallback;
};

/// Every setting there is.
namespace settings {

inline constexpr std::string_view kSettings = "Settings";
inline constexpr std::string_view kBrowsers = "Browsers";
inline constexpr std::string_view kFonts = "Fonts";

inline constexpr Setting kBlockComment{kSettings, "BlockComment", "//"};
inline constexpr Setting kIdAttribute{kSettings, "IDAttribute", "False"};
inline constexpr Setting kHeightWidth{kSettings, "HeightWidth", "False"};
inline constexpr Setting kUserOpenTag{kSettings, "UDO", ""};   ///< 1 to 10
inline constexpr Setting kUserCloseTag{kSettings, "UDC", ""};  ///< 1 to 10
inline constexpr Setting kRecentlyUsed{kSettings, "RU", ""};   ///< 0 to 9, newest first
inline constexpr Setting kDrive{kSettings, "Drive", "c:\\"};   ///< Two characters are read.
inline constexpr Setting kDirectory{kSettings, "Dir", "c:\\"};
inline constexpr Setting kPhysicalPath{kSettings, "PhysicalPath", ""};
inline constexpr Setting kVirtualPath{kSettings, "VirtualPath", "http://"};
inline constexpr Setting kUseVirtualPath{kSettings, "UseVPath", "no"};  ///< "yes" or "no"

inline constexpr Setting kBrowser1{kBrowsers, "IE", ""};
inline constexpr Setting kBrowser2{kBrowsers, "NN", ""};

inline constexpr Setting kFontBold{kFonts, "Bold", "False"};
inline constexpr Setting kFontStrikeThru{kFonts, "Strikethru", "False"};
inline constexpr Setting kFontName{kFonts, "Name", "Arial"};
inline constexpr Setting kFontSize{kFonts, "Size", "12"};  ///< Points.
inline constexpr Setting kFontUnderline{kFonts, "Underline", "False"};
inline constexpr Setting kFontItalic{kFonts, "Italic", "False"};

/// What a flag that is set looks like in the store; nothing else counts as set.
inline constexpr std::string_view kTrue = "True";
inline constexpr std::string_view kFalse = "False";
/// The same for the virtual path.
inline constexpr std::string_view kYes = "yes";
inline constexpr std::string_view kNo = "no";

}  // namespace settings
}  // namespace tagsmith
