#pragma once

#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Form.h"
#include "services/Graphics.h"

namespace tagsmith {

class Application;

namespace integration {

/// Tells what Tagsmith is, which version runs, what it stands on and on which terms; starts the
/// desktop's system information tool.
class frmAbout : public Form {
 public:
  explicit frmAbout(Application& application);

  Image imgLogo{*this, "imgLogo"};
  ControlArray<Label> Label2{*this, "Label2", {"Tagsmith", ""}};
  Label Label1{*this, "Label1", "A tag-oriented source editor for web pages."};
  Label lblDescription{*this, "lblDescription", ""};
  Label Label3{*this, "Label3", ""};
  Line Line1{*this, "Line1"};
  Label lblDisclaimer{*this, "lblDisclaimer", ""};
  CommandButton cmdOK{*this, "cmdOK"};
  CommandButton cmdSysInfo{*this, "cmdSysInfo"};

 private:
  void Form_Load();
  void StartSysInfo();

  Application& application_;
};

}  // namespace integration
}  // namespace tagsmith
