#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::dialogs {

/// Binds the commands that open a tag dialog to the buttons of the main form, which has the toolbar
/// pages. Called once, before the form is loaded.
void Install(Application& application);

}  // namespace tagsmith::dialogs
