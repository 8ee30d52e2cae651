#pragma once

#include "services/FileSystem.h"
#include "services/RtfConversion.h"

namespace tagsmith {

/// Converts with the reader in services/rtf; East Asian code pages are the C library's.
class HostRtfConversion final : public RtfConversion {
 public:
  /// `files` outlives the object.
  explicit HostRtfConversion(FileSystem& files) : files_(files) {}

  void ScroogeConvertFile(std::string_view from, std::string_view to, int reserved3,
                          std::string_view program, std::string_view reserved5,
                          std::string_view reserved6, std::string_view fontName,
                          int reserved8) override;

 private:
  FileSystem& files_;
};

}  // namespace tagsmith
