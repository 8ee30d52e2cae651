#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::generators {

/// Binds the button that copies the PHP class for writing HTML, and its documentation, from the
/// program's folder to the document's; to the current directory while the document has none. An
/// existing class is overwritten after a question only. A copy that fails is reported in the
/// platform's words.
void BindHtmlClassCommands(Application& application);

}  // namespace tagsmith::generators
