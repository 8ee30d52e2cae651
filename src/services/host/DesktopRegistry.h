#pragma once

#include "services/Registry.h"

namespace tagsmith {

/// The user's desktop as freedesktop.org describes it: entries and associations in the user's own
/// data folder.
class DesktopRegistry final : public Registry {
 public:
  void OfferFor(std::string_view mimeType, std::string_view entryName) override;
  std::optional<std::string> SystemInformationTool() const override;
};

}  // namespace tagsmith
