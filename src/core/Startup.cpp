#include "core/Startup.h"

#include "core/Application.h"
#include "core/frmMain.h"
#include "core/frmSplash.h"

namespace tagsmith {

void Start(Application& application, frmMain& form) {
  auto& splash = application.Instance<frmSplash>();
  splash.Show();
  splash.Refresh();  // On the screen before the long load.
  application.SetMainForm(form);
  form.Load();
  splash.Unload();
  form.Show();
}

}  // namespace tagsmith
