#pragma once

#include "services/Form.h"
#include "services/Graphics.h"

namespace tagsmith {

class Application;

/// What is on the screen while the main form loads: the logo, or nothing if it cannot be read.
class frmSplash : public Form {
 public:
  explicit frmSplash(Application& application);

  Image imgLogo{*this, "imgLogo"};

 private:
  void Form_Load();

  Application& application_;
};

}  // namespace tagsmith
