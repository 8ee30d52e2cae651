#include "toolbars/Install.h"

#include "core/Application.h"
#include "core/frmMain.h"
#include "toolbars/CatalogCommands.h"
#include "toolbars/FormattingCommands.h"
#include "toolbars/Pages.h"
#include "toolbars/PromptedCommands.h"
#include "toolbars/UserButtons.h"

namespace tagsmith::toolbars {

void Install(Application& application) {
  frmMain& form = application.MainForm();
  AddPages(form);
  BindFormattingCommands(application);
  BindCatalogCommands(application);
  BindPromptedCommands(application);
  BindUserButtons(application);
  form.startup.fillCatalogs = [&form] { Fill_All_Combos(form); };
}

}  // namespace tagsmith::toolbars
