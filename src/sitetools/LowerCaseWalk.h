#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tagsmith {
class FileSystem;
}

namespace tagsmith::sitetools {

/// The entries that a walk left as they were, since another one has the lower-case name already.
struct NamesLeft {
  static constexpr std::size_t kMostPaths = 1000;

  std::vector<std::string> paths;  ///< Full paths of the first ones, `kMostPaths` at most.
  std::size_t count = 0;           ///< Of all.
};

/// Gives everything below `directory` (a full path) a name in lower case; `directory` itself and
/// what is hidden keep theirs. The subdirectories come first, the last of the list first, each one
/// renamed and then walked; then the files in the order of the list. A symbolic link is renamed and
/// never walked through.
///
/// `onEnter` is called for each directory entered, `directory` among them, before its contents are
/// read, with its full path: false ends the walk there. Throws `Error` for what cannot be read or
/// renamed; what has its new name by then keeps it.
NamesLeft LowerCaseBelow(FileSystem& files, std::string_view directory,
                         const std::function<bool(std::string_view path)>& onEnter);

}  // namespace tagsmith::sitetools
