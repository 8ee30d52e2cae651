#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::dialogs {

/// Binds the buttons of the main form that insert a list or a drop-down of empty items, whose
/// number is asked for in a dialog.
void BindListCommands(Application& application);

}  // namespace tagsmith::dialogs
