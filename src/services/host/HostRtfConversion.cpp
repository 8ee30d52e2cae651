#include "services/host/HostRtfConversion.h"

namespace tagsmith {

void HostRtfConversion::ScroogeConvertFile(std::string_view /*from*/, std::string_view /*to*/,
                                           int /*reserved3*/, std::string_view /*program*/,
                                           std::string_view /*reserved5*/,
                                           std::string_view /*reserved6*/,
                                           std::string_view /*fontName*/, int /*reserved8*/) {
  static_cast<void>(files_);
}

}  // namespace tagsmith
