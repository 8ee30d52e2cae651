#pragma once

#include "services/Shell.h"

namespace tagsmith {

class HostFiles;

/// Starts programs of this computer. Each is a session of its own, nobody's child here, and gets
/// the user's home folder as its working directory, no input, and of the open files only the output
/// and the error output. An error tells the program and the platform's text.
class HostShell final : public Shell {
 public:
  /// `files` maps paths and outlives this.
  explicit HostShell(const HostFiles& files) : files_(files) {}

  /// A file that is the argument reaches the program by its host path, whatever bytes that is made
  /// of. Returns when the program runs or has failed to.
  void Start(std::string_view commandLine) override;

 private:
  const HostFiles& files_;
};

}  // namespace tagsmith
