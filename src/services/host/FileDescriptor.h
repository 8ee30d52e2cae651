#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <utility>

#include "services/FileSystem.h"

namespace tagsmith {

/// An open file of the process, closed with the object.
class FileDescriptor {
 public:
  explicit FileDescriptor(int number) : number_(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~FileDescriptor();

  int Number() const { return number_; }

  /// Writes all of `bytes` at the file's position. Throws when that fails on the way.
  void WriteAll(std::string_view bytes);

  /// Ends the writing: sees that the bytes have got as far as `durability` asks, and closes. Some
  /// file systems report only here that the disk is full, so that this, too, throws.
  void Finish(Durability durability);

 private:
  int number_;
};

/// Opens the file at `hostPath`, by `flags` and `mode` as open(2) takes them; programs that are
/// started later do not inherit it. Throws what that reports.
FileDescriptor OpenFile(const std::string& hostPath, int flags, mode_t mode = 0);

}  // namespace tagsmith
