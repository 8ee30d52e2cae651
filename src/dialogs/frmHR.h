#pragma once

#include "dialogs/DialogParts.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"

namespace tagsmith::dialogs {

/// Makes the tag of a line.
class frmHR : public ResultForm {
 public:
  explicit frmHR(Application& application);

  ControlArray<Label> lblTitle{*this, "lblTitle", {"Align", "Size", "Width", "Color", "ID"}};
  ComboBox cboAlign{*this, "cboAlign", ComboStyle::kDropDownCombo, /*sorted=*/true};
  ControlArray<TextBox> txtAttrib{*this, "txtAttrib", 2};
  Shape shpColor{*this, "shpColor"};
  CommandButton cmdChange{*this, "cmdChange"};
  TextBox txtID{*this, "txtID"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};
  CommonDialog MyDialog{*this};

 private:
  void FillcboAlign();
  void cmdInsert_Click();
};

}  // namespace tagsmith::dialogs
