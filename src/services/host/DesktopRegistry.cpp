#include "services/host/DesktopRegistry.h"

#include "services/Error.h"

namespace tagsmith {

void DesktopRegistry::OfferFor(std::string_view /*mimeType*/, std::string_view /*entryName*/) {
  throw Error(ErrorCode::kOther, "Cannot write");
}

std::optional<std::string> DesktopRegistry::SystemInformationTool() const { return std::nullopt; }

}  // namespace tagsmith
