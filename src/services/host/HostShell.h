#pragma once

#include "services/Shell.h"

namespace tagsmith {

class HostFiles;

/// Starts programs of this computer, in a process of their own that outlives this one.
class HostShell final : public Shell {
 public:
  /// `files` maps paths and outlives this.
  explicit HostShell(const HostFiles& files) : files_(files) {}

  void Start(std::string_view commandLine) override;

 private:
  const HostFiles& files_;
};

}  // namespace tagsmith
