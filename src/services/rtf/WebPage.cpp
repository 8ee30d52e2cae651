#include "services/rtf/WebPage.h"

#include "services/rtf/HtmlWriter.h"

namespace tagsmith::rtf {

WebPage ConvertToWebPage(std::string_view rtf, const PageOptions& options,
                         const MultiByteDecoder& decoder) {
  HtmlWriter writer(options);
  ReadRtf(rtf, decoder, writer);
  return writer.Take();
}

}  // namespace tagsmith::rtf
