#pragma once

#include <string>

namespace tagsmith::generators {

/// One file of a generated site, not written yet.
struct GeneratedFile {
  std::string name;  ///< Without a folder.
  std::string text;  ///< UTF-8, lines separated by CR LF, none behind the last.
};

}  // namespace tagsmith::generators
