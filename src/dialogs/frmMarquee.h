#pragma once

#include "dialogs/DialogParts.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"

namespace tagsmith::dialogs {

/// Makes a block of scrolling text; the selection comes in as the text.
class frmMarquee : public ResultForm {
 public:
  explicit frmMarquee(Application& application);

  ControlArray<Label> lblTitle{
      *this,
      "lblTitle",
      {"Text To Scroll", "Height", "Width", "HSpace", "VSpace", "Scroll Amount", "Scroll Delay",
       "Align", "Behavior", "Direction", "Loop", "Background Color", "ID"}};
  ControlArray<TextBox> txtAttib{*this, "txtAttib", 8};
  ComboBox cboAlign{*this, "cboAlign", ComboStyle::kDropDownCombo, /*sorted=*/true};
  ComboBox cboBehavior{*this, "cboBehavior", ComboStyle::kDropDownCombo, /*sorted=*/false};
  ComboBox cboDirection{*this, "cboDirection", ComboStyle::kDropDownCombo, /*sorted=*/false};
  Shape shpColor{*this, "shpColor"};
  CommandButton cmdChange{*this, "cmdChange"};
  TextBox txtID{*this, "txtID"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};
  CommonDialog MyDialog{*this};

 private:
  void Arrange();
  void Form_Load();
  void FillcboAlign();
  void cmdInsert_Click();
};

}  // namespace tagsmith::dialogs
