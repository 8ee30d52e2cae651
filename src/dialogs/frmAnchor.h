#pragma once

#include "dialogs/DialogParts.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"

namespace tagsmith::dialogs {

/// Makes a link; the selection comes in as its text.
class frmAnchor : public ResultForm {
 public:
  explicit frmAnchor(Application& application);

  ControlArray<Label> lblInstruct{*this, "lblInstruct", {"URL", "Text", "Target", "Name", "ID"}};
  TextBox txtURL{*this, "txtURL"};
  TextBox txtALT{*this, "txtALT"};
  TextBox txtTarget{*this, "txtTarget"};
  TextBox txtName{*this, "txtName"};
  TextBox txtID{*this, "txtID"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void Form_Load();
  void cmdInsert_Click();
};

}  // namespace tagsmith::dialogs
