#pragma once

#include <string_view>

namespace tagsmith {

/// Turns Rich Text Format files into web pages.
class RtfConversion {
 public:
  virtual ~RtfConversion() = default;

  /// Reads the RTF file `from` and writes the page `to`, its pictures beside it (system paths).
  /// Throws `Error` for a file that cannot be read or written, or is no RTF at all.
  virtual void ConvertFile(std::string_view from, std::string_view to) = 0;
};

}  // namespace tagsmith
