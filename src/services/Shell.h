#pragma once

#include <string_view>

namespace tagsmith {

/// Starts programs that then live on their own.
class Shell {
 public:
  virtual ~Shell() = default;

  /// Starts the program that `commandLine` names, in a normal window that takes the focus, without
  /// waiting for it. No command interpreter is involved: the program is the longest leading piece
  /// of the line that names a file, the rest behind one blank is its one argument. System paths;
  /// one that is an argument reaches the program as a path of the host. Throws `Error` when the
  /// program cannot be started.
  virtual void Start(std::string_view commandLine) = 0;
};

}  // namespace tagsmith
