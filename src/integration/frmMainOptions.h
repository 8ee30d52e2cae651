#pragma once

#include "services/Buttons.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/TextBox.h"

namespace tagsmith {
class Application;
struct Setting;
}  // namespace tagsmith

namespace tagsmith::integration {

/// The program's options. They take effect and are saved with OK; registering takes effect at once.
class frmMainOptions : public Form {
 public:
  explicit frmMainOptions(Application& application);

  Frame fraMisc{*this, "fraMisc", "Misc Options"};
  Label Label1{*this, "Label1", "Block comment symbol"};
  TextBox txtCommentSymbol{*this, "txtCommentSymbol"};
  Frame fraRegister{*this, "fraRegister", "Registry Options"};
  Label lblInstruct{*this, "lblInstruct",
                    "Click the button on the right so that when you right click on an HTML file, "
                    "you will have an Edit with Tagsmith option.  HTML files will also have the "
                    "Tagsmith icon."};
  CommandButton cmdRegister{*this, "cmdRegister"};
  Frame fraTagOptions{*this, "fraTagOptions", "Tag Options"};
  CheckBox chkID{*this, "chkID", "Include ID attribute in tags"};
  CheckBox chkHeightWidth{*this, "chkHeightWidth",
                          "Include Height and Width when dropping pictures"};
  CommandButton cmdOK{*this, "cmdOK"};

 private:
  void Form_Load();
  void cmdOK_Click();

  Application& application_;
};

}  // namespace tagsmith::integration
