#pragma once

namespace tagsmith {

class Application;
class frmMain;

/// The entry routine: shows the splash, loads the main form, which also puts it on the screen, and
/// takes the splash away. All commands are bound to `form` before.
void Start(Application& application, frmMain& form);

}  // namespace tagsmith
