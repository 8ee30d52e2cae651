#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::toolbars {

/// Reads the texts of the user's buttons from the settings.
void LoadUD(Application& application);
/// Writes them there.
void SaveUD(Application& application);
/// Gives each button on the page "User" its texts as tool tip, or says that it has none.
void AssignUDToolTips(Application& application);

/// Binds the user's buttons and the menu entry that defines them, and takes the start-up slots that
/// load them and assign their tool tips. The main form has the toolbar pages.
void BindUserButtons(Application& application);

}  // namespace tagsmith::toolbars
