#pragma once

namespace tagsmith {
class Application;
}

namespace tagsmith::sitetools {

/// Binds Find and Replace and the site tools to their menus and buttons.
void Install(Application& application);

}  // namespace tagsmith::sitetools
