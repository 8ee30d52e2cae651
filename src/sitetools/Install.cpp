#include "sitetools/Install.h"

#include "core/Application.h"
#include "core/frmMain.h"

namespace tagsmith::sitetools {

void Install(Application& application) {
  frmMain& form = application.MainForm();
  static_cast<void>(form);
}

}  // namespace tagsmith::sitetools
