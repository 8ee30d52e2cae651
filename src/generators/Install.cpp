#include "generators/Install.h"

#include "core/Application.h"
#include "core/frmMain.h"
#include "generators/HtmlClassCommands.h"
#include "generators/SnippetCommands.h"
#include "generators/frmJSMenu.h"
#include "generators/frmPHPDataDialog.h"
#include "generators/frmValControls.h"

namespace tagsmith::generators {

void Install(Application& application) {
  frmMain& form = application.MainForm();
  form.Get<CommandButton>("cmdJSMenu").onClick = [&application] {
    application.Instance<frmJSMenu>().Show(Modality::kModal);
  };
  form.Get<CommandButton>("cmdPHPDataDialog").onClick = [&application] {
    application.Instance<frmPHPDataDialog>().Show(Modality::kModal);
  };
  BindSnippetCommands(application);
  BindValidationCommands(application);
  BindHtmlClassCommands(application);
}

}  // namespace tagsmith::generators
