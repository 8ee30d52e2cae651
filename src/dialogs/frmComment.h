#pragma once

#include "dialogs/DialogParts.h"
#include "services/Buttons.h"

namespace tagsmith::dialogs {

/// Makes a comment; the selection comes in as its text.
class frmComment : public ResultForm {
 public:
  explicit frmComment(Application& application);

  Label lblComments{*this, "lblComments", "Comments"};
  TextBox txtComments{*this, "txtComments"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void Form_Load();
};

}  // namespace tagsmith::dialogs
