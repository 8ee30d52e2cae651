#include "services/rtf/WebPage.h"

namespace tagsmith::rtf {

WebPage ConvertToWebPage(std::string_view /*rtf*/, const PageOptions& /*options*/,
                         const MultiByteDecoder& /*decoder*/) {
  return {};
}

}  // namespace tagsmith::rtf
