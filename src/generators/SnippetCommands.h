#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::generators {

/// Binds the buttons of the script pages that insert a ready fragment.
void BindSnippetCommands(Application& application);

}  // namespace tagsmith::generators
