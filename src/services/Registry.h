#pragma once

#include <string_view>

namespace tagsmith {

/// The desktop's knowledge of which program opens which files.
class Registry {
 public:
  virtual ~Registry() = default;

  /// Has the desktop offer this program, under the name `entryName`, for files of the type
  /// `mimeType`, with the file's path as its command tail. The default program for the type stays
  /// what it was; doing it twice is the same as once. Throws `Error` when it cannot be written.
  virtual void OfferFor(std::string_view mimeType, std::string_view entryName) = 0;
};

}  // namespace tagsmith
