#pragma once

#include "services/Buttons.h"
#include "services/CommonDialog.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Lists.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::dialogs {

/// What `gColorValue` holds while there is no colour to insert.
inline constexpr std::string_view kNoColour = "-1";

/// Picks a colour, freely or by name. The quoted attribute value is in `gColorValue`, kNoColour
/// after a cancel.
class frmColors : public Form {
 public:
  explicit frmColors(Application& application);

  Shape shpColors{*this, "shpColors"};
  CommandButton cmdColors{*this, "cmdColors"};
  CheckBox chkColor{*this, "chkColor", "Use A Named Color"};
  ListBox lstColors{*this, "lstColors", /*sorted=*/true};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};
  CommonDialog MyDialog{*this};

 private:
  void Form_Load();
  void FillList();
  void cmdInsert_Click();
  void cmdCancel_Click();

  Application& application_;
};

}  // namespace tagsmith::dialogs
