#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::integration {

/// Binds the browser, options, spelling, help and picture commands to the controls of the main
/// form.
void Install(Application& application);

}  // namespace tagsmith::integration
