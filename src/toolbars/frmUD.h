#pragma once

#include <string>

#include "core/Application.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/TextBox.h"

namespace tagsmith::toolbars {

/// Edits the texts of the user's own buttons, `gUserOpenTags` and `gUserCloseTags`.
class frmUD : public Form {
 public:
  explicit frmUD(Application& application);

  /// Opening and closing label by turns.
  ControlArray<Label> MyLabel{*this, "MyLabel", 2 * kUserButtonCount, std::string()};
  ControlArray<TextBox> txtUDO{*this, "txtUDO", kUserButtonCount};
  ControlArray<TextBox> txtUDC{*this, "txtUDC", kUserButtonCount};
  Line Line1{*this, "Line1"};
  CommandButton cmdSave{*this, "cmdSave"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  Arrangement Half(int first);
  void Form_Load();
  void cmdSave_Click();

  Application& application_;
};

}  // namespace tagsmith::toolbars
