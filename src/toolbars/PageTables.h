#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "services/Control.h"
#include "services/Units.h"

namespace tagsmith::toolbars {

enum class ToolKind : std::uint8_t {
  kPictureButton,  ///< Its picture has the button's name.
  kCaptionButton,
  kInsertButton,  ///< The small picture button at the right of a catalog.
  kSortedList,    ///< A catalog that cannot be typed into.
  kSortedCombo,   ///< A catalog that can.
  kCombo,         ///< As kSortedCombo, in the order of filling.
};

/// One control of a toolbar page.
struct Tool {
  std::string_view name;
  std::string_view toolTip{};
  std::string_view face{};  ///< The caption of a kCaptionButton, the first text of a kCombo.
  Twips width = 0;          ///< Of a catalog; buttons have theirs by kind.
  int index = Control::kNoIndex;
  ToolKind kind = ToolKind::kPictureButton;
  bool newGroup = false;  ///< Whether a wider step sets it off from its neighbour on the left.
};

/// A page of one of the two strips of toolbar pages, its controls from left to right.
struct ToolPage {
  std::string_view strip;  ///< The SSTab's name.
  int page;
  std::span<const Tool> tools;
};

/// All pages of MyTab and MyTabScript.
std::span<const ToolPage> ToolPages();

}  // namespace tagsmith::toolbars
