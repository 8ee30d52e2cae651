#include "toolbars/Pages.h"

#include <string>

#include "services/Buttons.h"
#include "services/Form.h"
#include "services/Lists.h"
#include "services/SSTab.h"
#include "toolbars/PageTables.h"

namespace tagsmith::toolbars {
namespace {

constexpr Twips kFirstLeft = 120;
constexpr Twips kRowTop = 600;  // Below the tabs.
constexpr Twips kButtonSize = 375;
constexpr Twips kPitch = 360;  // Less than a button: neighbours share an edge.
constexpr Twips kGroupPitch = 480;
constexpr Twips kCatalogHeight = 330;
constexpr Twips kInsertHeight = 255;

TwipsRect Size(const Tool& tool) {
  switch (tool.kind) {
    case ToolKind::kPictureButton:
    case ToolKind::kCaptionButton:
      return {.width = kButtonSize, .height = kButtonSize};
    case ToolKind::kInsertButton:
      return {.width = kButtonSize, .height = kInsertHeight};
    case ToolKind::kSortedList:
    case ToolKind::kSortedCombo:
    case ToolKind::kCombo:
      break;
  }
  return {.width = tool.width, .height = kCatalogHeight};
}

/// Where `tool` stands when its neighbour on the left, if there is one, stands at `before`.
TwipsRect Place(const Tool& tool, const TwipsRect* before) {
  TwipsRect place = Size(tool);
  place.top = kRowTop + (kButtonSize - place.height) / 2;
  if (before == nullptr) {
    place.left = kFirstLeft;
  } else if (tool.kind == ToolKind::kInsertButton) {
    place.left = before->left + before->width;
  } else {
    place.left = before->left + (tool.newGroup ? kGroupPitch : kPitch);
  }
  return place;
}

Control& AddCatalog(Form& form, const Tool& tool) {
  const auto style =
      tool.kind == ToolKind::kSortedList ? ComboStyle::kDropDownList : ComboStyle::kDropDownCombo;
  const bool sorted = tool.kind != ToolKind::kCombo;
  auto& box = form.Add<ComboBox>(std::string(tool.name), style, sorted, tool.index);
  box.SetText(tool.face);
  return box;
}

Control& AddButton(Form& form, const Tool& tool) {
  auto& button = form.Add<CommandButton>(std::string(tool.name), tool.index);
  if (tool.kind == ToolKind::kCaptionButton) {
    button.SetCaption(tool.face);
  } else {
    button.SetPictureName(tool.name);
  }
  button.SetFocusOnClick(false);
  return button;
}

Control& AddTool(Form& form, const Tool& tool) {
  switch (tool.kind) {
    case ToolKind::kSortedList:
    case ToolKind::kSortedCombo:
    case ToolKind::kCombo:
      return AddCatalog(form, tool);
    case ToolKind::kPictureButton:
    case ToolKind::kCaptionButton:
    case ToolKind::kInsertButton:
      break;
  }
  return AddButton(form, tool);
}

void AddPage(Form& form, const ToolPage& page) {
  auto& strip = form.Get<SSTab>(page.strip);
  const TwipsRect* before = nullptr;
  for (const Tool& tool : page.tools) {
    Control& control = AddTool(form, tool);
    control.SetContainer(strip, page.page);
    control.Move(Place(tool, before));
    control.SetToolTipText(tool.toolTip);
    before = &control.Bounds();
  }
}

}  // namespace

void AddPages(Form& form) {
  for (const ToolPage& page : ToolPages()) AddPage(form, page);
}

}  // namespace tagsmith::toolbars
