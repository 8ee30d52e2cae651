#pragma once

#include <string>
#include <string_view>

namespace tagsmith::generators {

/// The page with an expandable menu that `menu` describes: one topic a line, lines separated by
/// CR LF or LF, as "Topic|Caption|Link|Caption|Link". The fields go into the page as they are. UTF-8;
/// the page's lines are separated by CR LF, none behind the last. Takes time in proportion to the
/// page.
std::string MenuPage(std::string_view menu);

}  // namespace tagsmith::generators
