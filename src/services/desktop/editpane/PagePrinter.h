#pragma once

#include <Qsci/qsciscintillabase.h>

#include <memory>
#include <string>
#include <string_view>

#include "services/TextPane.h"

namespace tagsmith {

class QtDeviceContext;
class ScintillaText;

/// Formats the text of a pane for paper: black on white, long lines wrapped, in the pane's font. It
/// works on a component of its own, off the screen, which holds one page's text at a time: the
/// pane's view stays as it is, and the time for a page does not depend on the text around it.
class PagePrinter {
 public:
  explicit PagePrinter(const FontSpec& font);

  /// As `TextPane::FormatRange`, for the text `source`. The contexts are `QtDeviceContext`.
  std::size_t Format(const ScintillaText& source, const PageRequest& request);

 private:
  class Sheet;

  std::shared_ptr<Sheet> sheet_;
  // How much text, in bytes, the next page is tried with. Long lines cost what is tried, and a page
  // that it does not fill is tried again.
  std::size_t guess_ = 8192;
};

}  // namespace tagsmith
