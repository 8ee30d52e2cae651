#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tagsmith {

/// A conversion of the C library between two encodings (POSIX.1-2017, iconv).
class Iconv {
 public:
  /// To and from the encodings of these names. With one that the C library does not know, no byte
  /// can be converted.
  Iconv(const std::string& to, const std::string& from);

  bool IsKnown() const { return descriptor_ != nullptr; }

  /// Appends to `into` what `bytes` hold up to the first that cannot be converted, and takes it off
  /// `bytes`, which are empty afterwards when they were all good. Each call begins a new text.
  void Convert(std::string_view& bytes, std::string& into) const;

 private:
  struct Closer {
    void operator()(void* descriptor) const;
  };
  std::unique_ptr<void, Closer> descriptor_;
};

}  // namespace tagsmith
