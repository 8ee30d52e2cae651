#pragma once

#include "generators/ValueCheck.h"
#include "services/Buttons.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/TextBox.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::generators {

/// Makes a test of a form control's value; it is in `gResultText`, which is empty after a cancel.
/// The caller sets the language before it shows the form.
class frmValControls : public Form {
 public:
  explicit frmValControls(Application& application);

  Frame fraControlName{*this, "fraControlName", "Name Of Control"};
  TextBox txtControlName{*this, "txtControlName"};
  Frame fraControl{*this, "fraControl", "Form Control Type"};
  ComboBox cboControl{*this, "cboControl", ComboStyle::kDropDownList, /*sorted=*/false};
  Frame fraValue{*this, "fraValue", "Value To Compare"};
  TextBox txtValue{*this, "txtValue"};
  Frame fraComparison{*this, "fraComparison", "Comparison Symbol"};
  OptionButton optEqualTo{*this, "optEqualTo", "Equal To"};
  OptionButton optNotEqualTo{*this, "optNotEqualTo", "Not Equal To"};
  OptionButton optGreaterThan{*this, "optGreaterThan", "Greater Than"};
  OptionButton optLessThan{*this, "optLessThan", "Less Than"};
  OptionButton optGTE{*this, "optGTE", "Greater Than or Equal To"};
  OptionButton optLTE{*this, "optLTE", "Less Than or Equal To"};
  Frame fraScript{*this, "fraScript", "Scripting Language"};
  OptionButton optJavaScript{*this, "optJavaScript", "JavaScript"};
  OptionButton optVBScript{*this, "optVBScript", "VBScript"};
  Frame fraMessage{*this, "fraMessage", "Message To Display If Comparison Is False"};
  TextBox txtMessage{*this, "txtMessage"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void Arrange();
  void Form_Load();
  void FillcboControl();
  Comparison ChosenComparison() const;
  void cmdInsert_Click();
  void Finish(const std::string& resultText);

  Application& application_;
};

/// Binds the buttons of the script pages that open the dialog, each with its language.
void BindValidationCommands(Application& application);

}  // namespace tagsmith::generators
