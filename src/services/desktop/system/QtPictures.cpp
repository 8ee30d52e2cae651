#include "services/desktop/system/QtPictures.h"

#include <QByteArrayView>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>
#include <cstdlib>
#include <limits>

#include "services/Error.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

constexpr qint64 kMostMegabytes = 256;
constexpr qint64 kMostBytes = kMostMegabytes * 1024 * 1024;
constexpr qint64 kBytesPerPixel = 4;

// A bitmap without a file header (Windows GDI: BITMAPINFOHEADER, BITMAPV4HEADER, BITMAPV5HEADER)
// begins with its header's size in four bytes; behind width and height stands the 1 of the planes.
constexpr QByteArrayView kBareHeaders[] = {{"\x28\0\0\0", 4}, {"\x6C\0\0\0", 4}, {"\x7C\0\0\0", 4}};
constexpr QByteArrayView kPlanes("\1\0", 2);
constexpr qsizetype kPlanesAt = 12;

// Qt's name for such a bitmap, which it does not look for by itself.
constexpr QByteArrayView kBareBitmap("dib");

// Drawings are left out: their text may ask for other files, or for work without end.
constexpr QByteArrayView kFormats[] = {"bmp", kBareBitmap, "gif", "ico", "jpeg", "png"};

[[noreturn]] void Fail(ErrorCode code, const QString& text) {
  throw Error(code, FromQString(text));
}

[[noreturn]] void FailAsTooLarge() {
  Fail(ErrorCode::kOutOfMemory, QStringLiteral("The picture is too large"));
}

// A pipe or a device is refused before it is opened: opening one may wait for ever.
void RefuseWhatIsNoFile(const QFileInfo& info) {
  if (!info.exists()) Fail(ErrorCode::kFileNotFound, QStringLiteral("No such file"));
  if (!info.isFile()) Fail(ErrorCode::kNotARegularFile, QStringLiteral("Not a regular file"));
  if (info.size() > kMostBytes) FailAsTooLarge();
}

void RefuseHarmfulSize(const QSize& size) {
  const qint64 bytes = qint64{size.width()} * size.height() * kBytesPerPixel;
  if (size.isValid() && bytes > kMostBytes) FailAsTooLarge();
}

bool IsBareBitmap(QFile& file) {
  const QByteArray head = file.peek(kPlanesAt + kPlanes.size());
  return head.size() == kPlanesAt + kPlanes.size() && head.endsWith(kPlanes) &&
         std::any_of(std::begin(kBareHeaders), std::end(kBareHeaders),
                     [&head](QByteArrayView header) { return head.startsWith(header); });
}

QImage Read(QImageReader& reader) {
  const QByteArray format = reader.format();
  if (std::find(std::begin(kFormats), std::end(kFormats), format) == std::end(kFormats)) {
    Fail(ErrorCode::kOther, QStringLiteral("Not a picture of a known kind"));
  }
  // A bitmap that runs from the top down has a height below 0.
  QSize size = reader.size();
  size.setHeight(std::abs(std::max(size.height(), -std::numeric_limits<int>::max())));
  RefuseHarmfulSize(size);
  QImage image;
  if (format == "bmp" || format == kBareBitmap) {
    // One that ends early would show whatever was in memory before.
    image = QImage(size, reader.imageFormat());
    image.fill(0);
  }
  if (!reader.read(&image)) Fail(ErrorCode::kOther, reader.errorString());
  RefuseHarmfulSize(image.size());
  return image;
}

}  // namespace

std::shared_ptr<const Picture> QtPictures::LoadPicture(std::string_view path) {
  const QString hostPath = ToQString(hostPathOf_(path));
  RefuseWhatIsNoFile(QFileInfo(hostPath));
  QFile file(hostPath);
  if (!file.open(QIODevice::ReadOnly)) Fail(ErrorCode::kPermissionDenied, file.errorString());

  QImageReader::setAllocationLimit(static_cast<int>(kMostMegabytes));
  QImageReader reader(&file);
  reader.setAutoTransform(true);  // Cameras note how they were held.
  if (IsBareBitmap(file)) {
    reader.setAutoDetectImageFormat(false);
    reader.setFormat(kBareBitmap.toByteArray());
  } else {
    reader.setDecideFormatFromContent(true);
  }
  QImage image = Read(reader);
  // Qt takes "name@2x.png" for a picture drawn at double density.
  image.setDevicePixelRatio(1);
  image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                          : QImage::Format_RGB32);
  return std::make_shared<QtPicture>(std::move(image));
}

}  // namespace tagsmith
