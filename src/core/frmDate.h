#pragma once

#include "services/Buttons.h"
#include "services/Form.h"
#include "services/Lists.h"

namespace tagsmith {

class Application;

/// Offers today's date in ten forms; the chosen one is in `gDateText`, which is empty after a
/// cancel.
class frmDate : public Form {
 public:
  explicit frmDate(Application& application);

  ListBox lstDate{*this, "lstDate", /*sorted=*/false};
  CommandButton cmdOK{*this, "cmdOK"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void Form_Load();
  void Finish(const std::string& dateText);

  Application& application_;
};

}  // namespace tagsmith
