#pragma once

#include <string>

#include "services/Error.h"

namespace tagsmith {

/// The error of a system call that left `errorNumber` in errno, with the platform's text for it.
Error SystemError(int errorNumber);

/// The same for a call that named the file at `hostPath`: kPathNotFound where not only the file is
/// missing but also its folder.
Error FileError(int errorNumber, const std::string& hostPath);

/// `error` with the path that it is about in front of its text.
Error ErrorAbout(const std::string& hostPath, const Error& error);

}  // namespace tagsmith
