#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::toolbars {

/// Puts the toolbar pages on the main form, binds the commands that need no tag dialog, and takes
/// the start-up slots. Called once, before the form is loaded and before whoever binds a command to
/// a button of these pages.
void Install(Application& application);

}  // namespace tagsmith::toolbars
