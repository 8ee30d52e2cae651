#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tagsmith {

/// Where a desktop keeps what it knows of its programs: the XDG Base Directory Specification,
/// "Environment variables". Host paths, the most important first; the first folder of data and the
/// first of settings are the user's own and need not be there yet.
struct DesktopPlaces {
  std::vector<std::string> dataFolders;
  std::vector<std::string> configFolders;
  std::vector<std::string> programFolders;
  /// The names of the desktop that is running, in lower case, as "kde".
  std::vector<std::string> desktops;
  /// The running program.
  std::string program;

  /// As the environment tells. Throws `Error` when the system does not tell the program's path.
  static DesktopPlaces OfThisSession();

  /// The path of the program called `name`, which may be a path already; nothing when there is none
  /// that the user may start.
  std::optional<std::string> FindProgram(std::string_view name) const;
};

}  // namespace tagsmith
