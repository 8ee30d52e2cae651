#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "services/desktop/editpane/TextSpan.h"

namespace tagsmith {

/// The names of an opening tag and of the closing tag that belongs to it.
struct TagPair {
  TextSpan opening;
  TextSpan closing;
};

/// The pair of which one tag holds `position` (on its "<", or behind that and before the end of its
/// ">"). `window` is a piece of a page; what lies outside it is not found. Comments, server code
/// and the contents of scripts, style sheets, titles and text areas hold no tags. Nothing for an
/// element that has no closing tag.
std::optional<TagPair> FindMatchingTag(std::string_view window, std::size_t position);

}  // namespace tagsmith
