#pragma once

#include <QImage>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "services/Pictures.h"

namespace tagsmith {

class QtPicture final : public Picture {
 public:
  explicit QtPicture(QImage image) : image_(std::move(image)) {}

  int WidthInPixels() const override { return image_.width(); }
  int HeightInPixels() const override { return image_.height(); }
  const QImage& ImageData() const { return image_; }

 private:
  QImage image_;
};

/// Reads BMP (also without its file header), GIF (the first frame), ICO, JPEG (upright, as the
/// camera was held) and PNG, the format told by the file's contents.
class QtPictures final : public PictureLoader {
 public:
  /// `hostPathOf` gives the host's path for a system path.
  explicit QtPictures(std::function<std::string(std::string_view)> hostPathOf)
      : hostPathOf_(std::move(hostPathOf)) {}

  std::shared_ptr<const Picture> LoadPicture(std::string_view path) override;

 private:
  std::function<std::string(std::string_view)> hostPathOf_;
};

}  // namespace tagsmith
