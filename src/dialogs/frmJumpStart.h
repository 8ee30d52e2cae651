#pragma once

#include "dialogs/DialogParts.h"
#include "dialogs/StartPage.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"

namespace tagsmith::dialogs {

/// Makes the skeleton of a page from a title, a background picture and five colours, which it
/// previews.
class frmJumpStart : public ResultForm {
 public:
  explicit frmJumpStart(Application& application);

  Label lblTitle{*this, "lblTitle", "&Title of Page"};
  TextBox txtTitle{*this, "txtTitle"};
  Label lblBkImage{*this, "lblBkImage", "Background &Image"};
  TextBox txtBkImage{*this, "txtBkImage"};
  Frame fraColors{*this, "fraColors", "Colors"};
  ControlArray<Label> lblChoice{*this, "lblChoice", {"BgColor", "Text", "Link", "VLink", "ALink"}};
  ControlArray<Shape> shpColors{*this, "shpColors", kColourCount};
  ControlArray<CommandButton> cmdColors{*this, "cmdColors", kColourCount};
  Frame fraPreview{*this, "fraPreview", "Preview"};
  PictureBox picBackColor{*this, "picBackColor"};
  ControlArray<Label> lblText{*this, "lblText", {"Text", "Link", "VLink", "ALink"}};
  CommandButton cmdCreate{*this, "cmdCreate"};
  CommandButton cmdCancel{*this, "cmdCancel"};
  CommonDialog MyDialog{*this};

 private:
  static constexpr int kColourCount = static_cast<int>(kPageColours.size());

  void Arrange();
  void PlacePreview();
  void cmdColors_Click(int index);
  void cmdCreate_Click();
};

}  // namespace tagsmith::dialogs
