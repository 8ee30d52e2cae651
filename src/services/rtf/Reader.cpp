#include "services/rtf/Reader.h"

#include <algorithm>
#include <cstddef>

#include "services/Utf8.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {

void ReadRtf(std::string_view rtf, const MultiByteDecoder& decoder, DocumentSink& sink) {
  if (rtf.starts_with(kByteOrderMark)) rtf.remove_prefix(kByteOrderMark.size());
  rtf.remove_prefix(std::min(rtf.find_first_not_of(" \t\r\n\f\v"), rtf.size()));
  if (!rtf.starts_with("{\\rtf")) throw NotRtf();
  Interpreter(rtf, decoder, sink).Run();
}

}  // namespace tagsmith::rtf
