#pragma once

#include "dialogs/DialogParts.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"

namespace tagsmith::dialogs {

/// Makes the opening tag of an image.
class frmImage : public ResultForm {
 public:
  explicit frmImage(Application& application);

  ControlArray<Label> lblTitle{*this,
                               "lblTitle",
                               {"URL", "ALT Text", "Height", "Width", "HSpace", "VSpace", "Border",
                                "Align", "DynSrc", "Loop", "ID"}};
  ControlArray<TextBox> txtAttib{*this, "txtAttib", 9};
  ComboBox cboAlign{*this, "cboAlign", ComboStyle::kDropDownCombo, /*sorted=*/true};
  TextBox txtID{*this, "txtID"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void Arrange();
  void FillcboAlign();
  void cmdInsert_Click();
};

}  // namespace tagsmith::dialogs
