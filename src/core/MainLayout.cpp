#include "core/MainLayout.h"

#include <string_view>

#include "core/frmMain.h"

namespace tagsmith {
namespace {

// All lengths in twips; places on the form, or on the tab page that the control stands on.
constexpr Twips kClientWidth = 9405;
constexpr Twips kClientHeight = 7020;

struct Place {
  std::string_view control;
  TwipsRect bounds;
};

constexpr Place kPlaces[] = {
    {"MyOuterTab", {0, 0, 9285, 1350}},
    {"MyTab", {540, 60, 8655, 1230}},
    {"MyTabScript", {540, 60, 8655, 1230}},
    {"MyDrive", {15, 1800, 2055, 330}},
    {"MyDirectory", {15, 2160, 2055, 1770}},
    {"MyFileList", {15, 3900, 2065, 2820}},
    {"lblResizer", {2040, 1800, 135, 4935}},
    {"txtEdit", {2160, 1800, 6735, 4455}},
    {"MyTabFiles", {2160, 6360, 6735, 345}},
    {"sbStatusBar", {0, 6765, 9405, 255}},
    {"MyImage", {10, 10, 0, 0}},
};

constexpr Twips kButtonTop = 1380;
constexpr Twips kButtonSize = 375;

struct QuickButton {
  std::string_view control;
  Twips left;
  std::string_view toolTip;
  std::string_view caption = {};  ///< Empty for a picture of the control's own name.
};

constexpr QuickButton kQuickButtons[] = {
    {"cmdNew", 120, "New Document"},
    {"cmdOpen", 480, "Open Document"},
    {"cmdSave", 840, "Save Current Document"},
    {"cmdPrint", 1320, "Print Current Document"},
    {"cmdCut", 1800, "Cut"},
    {"cmdCopy", 2160, "Copy"},
    {"cmdPaste", 2520, "Paste"},
    {"cmdSpellCheck", 3000, "Check Spelling"},
    {"cmdIE", 3480, "View with Browser #1"},
    {"cmdNN", 3840, "View with Browser #2"},
    {"cmdCommentBlock", 4320, "Comment Block of Code"},
    {"cmdUnCommentBlock", 4680, "UnComment Block of Code"},
    {"cmdVirtualPath", 5160, "Map a Physical Path to a Virtual Path", "VP"},
    {"cmdHelp", 8520, "Help"},
};

void DressButton(frmMain& form, const QuickButton& row) {
  auto& button = form.Get<CommandButton>(row.control);
  button.Move({row.left, kButtonTop, kButtonSize, kButtonSize});
  button.SetToolTipText(row.toolTip);
  button.SetCaption(row.caption);
  if (row.caption.empty()) button.SetPictureName(row.control);
  button.SetFocusOnClick(false);
}

}  // namespace

void ApplyMainLayout(frmMain& form) {
  form.SetBorder(BorderStyle::kSizable);
  form.SetWidth(kClientWidth + kFormExtraWidth);
  form.SetHeight(kClientHeight + kFormExtraHeight);
  for (const Place& place : kPlaces) form.Get<Control>(place.control).Move(place.bounds);
  for (const QuickButton& row : kQuickButtons) DressButton(form, row);

  form.MyTab.SetContainer(form.MyOuterTab, 0);
  form.MyTabScript.SetContainer(form.MyOuterTab, 1);
  form.lblResizer.SetMousePointer(kSizeWestEast);
  form.MyImage.SetVisible(false);
  form.cmdSave.SetEnabled(false);
  // A click on a tab leaves the focus where it is; file names and paths have no access keys.
  form.MyTabFiles.SetFocusOnClick(false);
  form.MyTabFiles.SetPlainCaptions(true);
  for (int i = 0; i < form.mnuRecentlyUsed.Count(); ++i) {
    form.mnuRecentlyUsed(i).SetPlainCaption(true);
  }
}

}  // namespace tagsmith
