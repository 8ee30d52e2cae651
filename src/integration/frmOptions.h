#pragma once

#include <string>

#include "services/Buttons.h"
#include "services/CommonDialog.h"
#include "services/ControlArray.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/TextBox.h"

namespace tagsmith {
class Application;
struct Setting;
}  // namespace tagsmith

namespace tagsmith::integration {

/// Says where the two browsers are. "Done" keeps each path that leads to a file, in the settings
/// and in `gBrowser1Path` and `gBrowser2Path`.
class frmOptions : public Form {
 public:
  explicit frmOptions(Application& application);

  ControlArray<Label> Label1{*this, "Label1", {"Browser 1", "Browser 2"}};
  TextBox txtIE{*this, "txtIE"};
  TextBox txtNN{*this, "txtNN"};
  ControlArray<CommandButton> cmdIE{*this, "cmdIE", 2};
  CommandButton cmdDone{*this, "cmdDone"};
  CommonDialog MyDialog{*this};

 private:
  void Form_Load();
  void cmdIE_Click(int Index);
  void cmdDone_Click();
  void Keep(const TextBox& field, const Setting& setting, std::string& browserPath);

  Application& application_;
};

}  // namespace tagsmith::integration
