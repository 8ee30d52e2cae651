#include "services/rtf/Reader.h"

namespace tagsmith::rtf {

void ReadRtf(std::string_view /*rtf*/, const MultiByteDecoder& /*decoder*/,
             DocumentSink& /*sink*/) {}

}  // namespace tagsmith::rtf
