#pragma once

#include <memory>
#include <string_view>

namespace tagsmith {

/// A loaded picture. The desktop that loaded it knows how to paint it.
class Picture {
 public:
  virtual ~Picture() = default;

  /// The natural size in pixels.
  virtual int WidthInPixels() const = 0;
  virtual int HeightInPixels() const = 0;
};

class PictureLoader {
 public:
  virtual ~PictureLoader() = default;

  /// Reads the picture file at `path` (a system path). Throws `Error` when it is not there or not a
  /// picture of a known kind, and when it is so large that showing it would do harm.
  virtual std::shared_ptr<const Picture> LoadPicture(std::string_view path) = 0;
};

}  // namespace tagsmith
