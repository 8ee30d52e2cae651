#pragma once

namespace tagsmith {
class Application;
class Form;
}  // namespace tagsmith

namespace tagsmith::integration {

/// Has the desktop offer "Edit with Tagsmith" for HTML files and says so in a message above
/// `owner`; what the platform has against it is said there instead.
void RegisterWithShell(Application& application, Form& owner);

}  // namespace tagsmith::integration
