#include "dialogs/Install.h"

#include "dialogs/DialogCommands.h"
#include "dialogs/ListCommands.h"

namespace tagsmith::dialogs {

void Install(Application& application) {
  BindDialogCommands(application);
  BindListCommands(application);
}

}  // namespace tagsmith::dialogs
