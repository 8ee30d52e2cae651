#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace tagsmith {

/// Decodes the code pages that the C library knows by their Windows numbers.
class IconvDecoder {
 public:
  /// `bytes` of `codePage` as UTF-8. Each byte that makes no character, and each byte past 0x7F of
  /// a code page that the C library does not know, gives U+FFFD.
  std::string Decode(int codePage, std::string_view bytes);

 private:
  struct Closer {
    void operator()(void* descriptor) const;
  };
  using Descriptor = std::unique_ptr<void, Closer>;

  void* DescriptorOf(int codePage);

  std::map<int, Descriptor> descriptors_;  ///< Null for a code page that is not known.
};

}  // namespace tagsmith
