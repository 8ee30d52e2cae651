#pragma once

#include <string_view>

namespace tagsmith {

/// Turns Rich Text Format files into web pages.
class RtfConversion {
 public:
  virtual ~RtfConversion() = default;

  /// Reads the RTF file `from` and writes the page `to`, its pictures beside it (system paths). A
  /// page or picture that is there already is replaced. `program` is named in the page as its
  /// maker, `fontName` is the font of text whose own is not named. The other values have no
  /// meaning. Throws `Error` for a file that cannot be read or written, or is no RTF at all; then
  /// there is no new page.
  virtual void ScroogeConvertFile(std::string_view from, std::string_view to, int reserved3,
                                  std::string_view program, std::string_view reserved5,
                                  std::string_view reserved6, std::string_view fontName,
                                  int reserved8) = 0;
};

}  // namespace tagsmith
