#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::toolbars {

/// Binds the buttons of the main form, which has the toolbar pages, that make a tag from what the
/// user types into one to three input boxes. An answer goes in as typed; a cancelled box gives an
/// empty answer, and the tag is inserted all the same.
void BindPromptedCommands(Application& application);

}  // namespace tagsmith::toolbars
