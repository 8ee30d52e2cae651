#pragma once

#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/TextBox.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::integration {

/// Which local directory a web address stands for, and whether documents are viewed by way of it.
/// Keeps what it shows with every unload.
class frmVirtualPath : public Form {
 public:
  explicit frmVirtualPath(Application& application);

  ControlArray<Label> Label1{*this, "Label1", {"Physical Path", "Virtual Path"}};
  TextBox txtPhysicalPath{*this, "txtPhysicalPath"};
  TextBox txtVirtualPath{*this, "txtVirtualPath"};
  CheckBox chkUseVPath{*this, "chkUseVPath", "Use Virtual Path"};
  CommandButton cmdOk{*this, "cmdOk"};

 private:
  void Form_Load();
  void Form_Unload();

  Application& application_;
};

}  // namespace tagsmith::integration
