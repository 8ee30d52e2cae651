#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::generators {

/// Binds the script commands and the generators' dialogs to the buttons of the main form, which has
/// the toolbar pages. Called once, before the form is loaded.
void Install(Application& application);

}  // namespace tagsmith::generators
