#pragma once

#include <string>
#include <string_view>

namespace tagsmith::generators {

/// The page with an expandable menu that `menu` describes: one topic a line, as
/// "Topic|Caption|Link|Caption|Link"; lines end in CR LF, CR or LF, and a byte order mark in front
/// is passed over. The fields go into the page as they are. The page is UTF-8; its lines are
/// separated by CR LF, none behind the last. Takes time in proportion to the page.
std::string MenuPage(std::string_view menu);

}  // namespace tagsmith::generators
