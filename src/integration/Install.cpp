#include "integration/Install.h"

#include "core/Application.h"
#include "core/frmMain.h"
#include "integration/BrowserCommands.h"
#include "integration/SpellingCommand.h"
#include "integration/frmAbout.h"
#include "integration/frmImageView.h"
#include "integration/frmMainOptions.h"

namespace tagsmith::integration {

void Install(Application& application) {
  BindBrowserCommands(application);
  BindSpelling(application);
  frmMain& form = application.MainForm();
  form.mnuViewPic.onClick = [&application] {
    application.Instance<frmImageView>().Show(Modality::kModal);
  };
  form.mnuOptions.onClick = [&application] {
    application.Instance<frmMainOptions>().Show(Modality::kModal, &application.MainForm());
  };
  form.mnuHelpAbout.onClick = [&application] {
    application.Instance<frmAbout>().Show(Modality::kModal, &application.MainForm());
  };
}

}  // namespace tagsmith::integration
