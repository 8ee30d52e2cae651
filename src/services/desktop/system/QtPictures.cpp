#include "services/desktop/system/QtPictures.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include "services/Error.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

constexpr qint64 kMostMegabytes = 256;
constexpr qint64 kBytesPerPixel = 4;

[[noreturn]] void Fail(ErrorCode code, const QString& text) {
  throw Error(code, FromQString(text));
}

// A pipe or a device is refused before it is opened: opening one may wait for ever.
void RefuseWhatIsNoFile(const QFileInfo& info) {
  if (!info.exists()) Fail(ErrorCode::kFileNotFound, QStringLiteral("No such file"));
  if (!info.isFile()) Fail(ErrorCode::kNotARegularFile, QStringLiteral("Not a regular file"));
}

void RefuseHarmfulSize(const QSize& size) {
  const qint64 bytes = qint64{size.width()} * size.height() * kBytesPerPixel;
  if (size.isValid() && bytes > kMostMegabytes * 1024 * 1024) {
    Fail(ErrorCode::kOutOfMemory, QStringLiteral("The picture is too large"));
  }
}

}  // namespace

std::shared_ptr<const Picture> QtPictures::LoadPicture(std::string_view path) {
  const QString hostPath = ToQString(hostPathOf_(path));
  RefuseWhatIsNoFile(QFileInfo(hostPath));
  QFile file(hostPath);
  if (!file.open(QIODevice::ReadOnly)) Fail(ErrorCode::kPermissionDenied, file.errorString());

  QImageReader::setAllocationLimit(static_cast<int>(kMostMegabytes));
  QImageReader reader(&file);
  reader.setDecideFormatFromContent(true);
  RefuseHarmfulSize(reader.size());
  QImage image = reader.read();
  if (image.isNull()) Fail(ErrorCode::kOther, reader.errorString());
  RefuseHarmfulSize(image.size());
  // Qt takes "name@2x.png" for a picture drawn at double density.
  image.setDevicePixelRatio(1);
  image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                          : QImage::Format_RGB32);
  return std::make_shared<QtPicture>(std::move(image));
}

}  // namespace tagsmith
