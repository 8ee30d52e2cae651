#pragma once

#include <map>
#include <string>
#include <string_view>

#include "services/host/Iconv.h"

namespace tagsmith {

/// Decodes the code pages that the C library knows by their Windows numbers.
class IconvDecoder {
 public:
  /// `bytes` of `codePage` as UTF-8. Each byte that makes no character, and each byte past 0x7F of
  /// a code page that the C library does not know, gives U+FFFD.
  std::string Decode(int codePage, std::string_view bytes);

 private:
  const Iconv& ConversionOf(int codePage);

  std::map<int, Iconv> conversions_;
};

}  // namespace tagsmith
