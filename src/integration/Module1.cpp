#include "integration/Module1.h"

#include <string>

#include "core/Application.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/Registry.h"

namespace tagsmith::integration {

void RegisterWithShell(Application& application, Form& owner) {
  std::string message = "Tagsmith has been registered with HTML files!";
  try {
    application.platform.registry.OfferFor("text/html", "Edit with Tagsmith");
  } catch (const Error& error) {
    message = error.what();
  }
  application.MsgBox(owner, message, kInformationIcon, "Register Tagsmith...");
}

}  // namespace tagsmith::integration
