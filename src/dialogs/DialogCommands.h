#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::dialogs {

/// Binds the buttons of the main form that open a tag dialog and put what it made into the text.
void BindDialogCommands(Application& application);

}  // namespace tagsmith::dialogs
