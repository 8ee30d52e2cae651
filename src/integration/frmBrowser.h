#pragma once

#include <string>

#include "services/Buttons.h"
#include "services/Form.h"
#include "services/Graphics.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::integration {

/// Shows a file in one of the two browsers, as the user chooses. Whoever opens it puts the file's
/// full path into `Tag` first.
class frmBrowser : public Form {
 public:
  explicit frmBrowser(Application& application);

  Label Label1{*this, "Label1", "Choose A Browser To View The Help File"};
  CommandButton cmdIE{*this, "cmdIE"};
  CommandButton cmdNetscape{*this, "cmdNetscape"};
  CommandButton cmdExit{*this, "cmdExit"};

 private:
  void View(const std::string& browserPath);

  Application& application_;
};

}  // namespace tagsmith::integration
