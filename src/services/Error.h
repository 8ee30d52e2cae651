#pragma once

#include <stdexcept>
#include <string>

namespace tagsmith {

/// Why a service failed, as far as the commands tell it apart.
enum class ErrorCode {
  kOther,
  kOutOfMemory,
  kFileNotFound,
  kPathNotFound,
  kDeviceUnavailable,
  kPermissionDenied,
  kDiskFull,
  kNotARegularFile,
  kCancelled,
};

/// The one error type of all services. `what()` is the platform's own text for the failure, in
/// UTF-8 and fit to be shown to the user. The routine that owns the trap catches it; no error
/// crosses an event handler.
class Error : public std::runtime_error {
 public:
  Error(ErrorCode code, const std::string& text) : std::runtime_error(text), code_(code) {}

  ErrorCode Code() const { return code_; }

 private:
  ErrorCode code_;
};

}  // namespace tagsmith
