#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tagsmith {

/// The desktop's knowledge of its programs.
class Registry {
 public:
  virtual ~Registry() = default;

  /// Has the desktop offer this program, under the name `entryName`, for files of the type
  /// `mimeType`, with the file's path as its command tail. The default program for the type stays
  /// what it was; doing it twice is the same as once. Throws `Error` when it cannot be written.
  virtual void OfferFor(std::string_view mimeType, std::string_view entryName) = 0;

  /// The command line, as `Shell::Start` takes it, of the tool that tells about this computer;
  /// nothing where none is installed.
  virtual std::optional<std::string> SystemInformationTool() const = 0;
};

}  // namespace tagsmith
