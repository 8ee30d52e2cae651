#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

/// What is no Rich Text Format at all.
class NotRtf : public std::runtime_error {
 public:
  NotRtf() : std::runtime_error("The file is not in Rich Text Format") {}
};

/// Decodes `bytes` of a code page that has characters of several bytes (932, 936, 949, 950, 1361)
/// to UTF-8.
using MultiByteDecoder = std::function<std::string(int codePage, std::string_view bytes)>;

/// Reads a file in Microsoft's Rich Text Format, specification 1.9.1 (March 2008), and tells it to
/// `sink`. A damaged or cut file gives what can be read. `decoder` may be empty: such characters
/// become U+FFFD then. Time and memory grow with the file in proportion. Throws `NotRtf` unless the
/// file begins with "{\rtf", byte order mark and white space in front passed over.
void ReadRtf(std::string_view rtf, const MultiByteDecoder& decoder, DocumentSink& sink);

}  // namespace tagsmith::rtf
