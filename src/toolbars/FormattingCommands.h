#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::toolbars {

/// Binds the formatting buttons and the heading box of the main form, which has the toolbar pages:
/// each puts a fixed text on each side of the selection by InsertAround.
void BindFormattingCommands(Application& application);

}  // namespace tagsmith::toolbars
