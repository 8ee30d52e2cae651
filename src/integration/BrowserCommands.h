#pragma once

#include <string>
#include <string_view>

namespace tagsmith {
class Application;
class Form;
}  // namespace tagsmith

namespace tagsmith::integration {

/// Binds what has to do with browsers on the main form: the two buttons that show the document, the
/// entries of the View menu, the virtual path and the help pages.
void BindBrowserCommands(Application& application);

// Shared with the form that offers both browsers. `owner` is the form that asks; all paths are
// system paths.

/// Whether the browser can be started. Only a path that is empty is told to the user.
bool HasBrowser(Application& application, Form& owner, std::string_view browserPath);

/// Tells the user that the file called `name` is not there.
void ReportMissingFile(Application& application, Form& owner, std::string_view name);

/// Starts the browser with `target`, a system path or an address, without waiting for it. Throws
/// `Error` when it cannot be started.
void StartBrowser(Application& application, std::string_view browserPath, std::string_view target);

}  // namespace tagsmith::integration
