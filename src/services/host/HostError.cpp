#include "services/host/HostError.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace tagsmith {
namespace {

ErrorCode CodeOf(int errorNumber) {
  switch (errorNumber) {
    case ENOENT:
      return ErrorCode::kFileNotFound;
    case ENOTDIR:
      return ErrorCode::kPathNotFound;
    case ENODEV:
    case ENXIO:
    case ENOMEDIUM:
      return ErrorCode::kDeviceUnavailable;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
      return ErrorCode::kPermissionDenied;
    case ENOSPC:
    case EDQUOT:
      return ErrorCode::kDiskFull;
    case EISDIR:
      return ErrorCode::kNotARegularFile;
    case ENOMEM:
      return ErrorCode::kOutOfMemory;
    default:
      return ErrorCode::kOther;
  }
}

bool IsFolderMissing(const std::string& hostPath) {
  std::error_code ignored;
  return !std::filesystem::is_directory(std::filesystem::path(hostPath).parent_path(), ignored);
}

}  // namespace

Error SystemError(int errorNumber) {
  return {CodeOf(errorNumber), std::system_category().message(errorNumber)};
}

Error FileError(int errorNumber, const std::string& hostPath) {
  Error error = SystemError(errorNumber);
  if (error.Code() != ErrorCode::kFileNotFound || !IsFolderMissing(hostPath)) return error;
  return {ErrorCode::kPathNotFound, error.what()};
}

Error ErrorAbout(const std::string& hostPath, const Error& error) {
  return Error(error.Code(), hostPath + ": " + error.what());
}

}  // namespace tagsmith
