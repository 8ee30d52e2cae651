#pragma once

#include <array>
#include <string>
#include <string_view>

#include "services/Units.h"

namespace tagsmith::dialogs {

/// The colours of a page: the attributes of its BODY tag, in the order in which they are written.
inline constexpr std::array<std::string_view, 5> kPageColours = {"BgColor", "Text", "Link", "VLink",
                                                                 "ALink"};

/// What the skeleton of a page is made from. The texts go in as typed, untrimmed.
struct StartPageFields {
  std::string title;
  std::string backgroundImage;  ///< Empty for a page without one.
  std::array<Colour, kPageColours.size()> colours{};
};

/// The skeleton of a page. Lines are separated by CR LF; none stands behind the last.
std::string StartPage(const StartPageFields& fields);

}  // namespace tagsmith::dialogs
