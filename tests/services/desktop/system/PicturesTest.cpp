#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTransform>
#include <string>
#include <utility>

#include "services/Error.h"
#include "services/desktop/system/QtPictures.h"

namespace tagsmith {
namespace {

class Pictures : public testing::Test {
 protected:
  std::string PathOf(const QString& name) const { return directory_.filePath(name).toStdString(); }

  void Put(const QString& name, const QByteArray& bytes) {
    QFile file(directory_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QByteArray Bytes(const QString& name) const {
    QFile file(directory_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir directory_;
  QtPictures loader_{[](std::string_view path) { return std::string(path); }};
};

TEST_F(Pictures, HaveTheirNaturalSizeWhateverTheNameSays) {
  QImage image(7, 5, QImage::Format_RGB32);
  image.fill(Qt::red);
  ASSERT_TRUE(image.save(directory_.filePath("dense@2x.png"), "png"));
  ASSERT_TRUE(image.save(directory_.filePath("really-a-png.jpg"), "png"));
  // Qt writes no GIF: one frame of 2 by 1 pixels, both black, on a screen of 7 by 5 (GIF89a).
  Put("gif",
      QByteArray::fromHex("47494638396107000500800000000000ffffff2c000000000200010000020244003b"));
  // A bitmap of 24 bits without a file header, which ends after its lowest row.
  Put("bare.dib", QByteArray::fromHex("2800000007000000050000000100180000000000"
                                      "0000000000000000000000000000000000000000") +
                      QByteArray(24, '\xFF'));
  // What a camera that was held upright notes in a JPEG ("Orientation" 6).
  ASSERT_TRUE(image.transformed(QTransform().rotate(90)).save(directory_.filePath("exif"), "jpg"));
  Put("exif", Bytes("exif").insert(2, QByteArray::fromHex("ffe1002245786966"
                                                          "00004d4d002a00000008000101120003"
                                                          "00000001000600000000"
                                                          "0000")));
  for (const char* name : {"gif", "dense@2x.png", "really-a-png.jpg", "bare.dib", "exif"}) {
    SCOPED_TRACE(name);
    const auto picture = loader_.LoadPicture(PathOf(name));
    EXPECT_EQ(picture->WidthInPixels(), 7);
    EXPECT_EQ(picture->HeightInPixels(), 5);
    const QImage& shown = dynamic_cast<const QtPicture&>(*picture).ImageData();
    EXPECT_EQ(shown.devicePixelRatio(), 1);
    if (name == std::string("bare.dib")) {
      EXPECT_EQ(shown.pixel(6, 0), qRgb(0, 0, 0)) << "memory of others";
    }
  }
}

TEST_F(Pictures, ThatCannotBeShownAreRefusedAtOnce) {
  Put("empty.png", "");
  Put("drawing.gif", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
  // A bitmap's header alone that promises 10000 by 10000 pixels of 32 bits.
  Put("bomb.bmp",
      QByteArray::fromHex("424d3600000000000000360000002800000010270000102700000100200000"
                          "0000000000000000000000000000000000000000000000"));
  // The same from the top down, and without a file header.
  Put("down.bmp", Bytes("bomb.bmp").replace(22, 4, QByteArray::fromHex("f0d8ffff")));
  Put("bomb.dib", Bytes("bomb.bmp").mid(14));
  // More than any picture that is shown takes: none of it is read.
  Put("long.gif", "GIF89a");
  ASSERT_TRUE(QFile::resize(directory_.filePath("long.gif"), qint64{1} << 30));
  ASSERT_EQ(mkfifo(PathOf("pipe.gif").c_str(), 0600), 0);
  const std::pair<const char*, ErrorCode> faults[] = {
      {"empty.png", ErrorCode::kOther},          {"drawing.gif", ErrorCode::kOther},
      {"down.bmp", ErrorCode::kOutOfMemory},     {"bomb.dib", ErrorCode::kOutOfMemory},
      {"long.gif", ErrorCode::kOutOfMemory},     {"bomb.bmp", ErrorCode::kOutOfMemory},
      {"pipe.gif", ErrorCode::kNotARegularFile}, {"missing.gif", ErrorCode::kFileNotFound}};
  for (const auto& [name, code] : faults) {
    try {
      loader_.LoadPicture(PathOf(name));
      ADD_FAILURE() << name << " was loaded";
    } catch (const Error& error) {
      EXPECT_EQ(error.Code(), code) << name;
    }
  }
}

}  // namespace
}  // namespace tagsmith
