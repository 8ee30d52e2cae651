#include "services/host/HostShell.h"

#include "services/Error.h"

namespace tagsmith {

void HostShell::Start(std::string_view /*commandLine*/) {
  static_cast<void>(files_);
  throw Error(ErrorCode::kOther, "Cannot start programs");
}

}  // namespace tagsmith
