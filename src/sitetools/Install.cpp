#include "sitetools/Install.h"

#include "core/Application.h"
#include "core/frmMain.h"
#include "services/Buttons.h"
#include "sitetools/frmDirectoryReplace.h"
#include "sitetools/frmExportWizard.h"
#include "sitetools/frmFind.h"
#include "sitetools/frmLowerCase.h"
#include "sitetools/frmRTFDialog.h"

namespace tagsmith::sitetools {

void Install(Application& application) {
  frmMain& form = application.MainForm();
  form.Get<CommandButton>("cmdDirDialog").onClick = [&application] {
    application.Instance<frmDirectoryReplace>().Show(Modality::kModal);
  };
  form.Get<CommandButton>("cmdRTFDialog").onClick = [&application] {
    application.Instance<frmRTFDialog>().Show(Modality::kModal);
  };
  for (Menu* entry : {&form.mnuFind, &form.mnuReplace}) {
    entry->onClick = [&application] {
      auto& find = application.Instance<frmFind>();
      find.Show();
      find.txtFind.SetFocus();
    };
  }
  form.Get<CommandButton>("cmdFileManDialog").onClick = [&application] {
    application.Instance<frmExportWizard>().Show();
  };
  form.Get<CommandButton>("cmdLowerCase").onClick = [&application] {
    application.Instance<frmLowerCase>().Show();
  };
}

}  // namespace tagsmith::sitetools
