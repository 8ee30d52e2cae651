#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
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
  for (const char* name : {"gif", "dense@2x.png", "really-a-png.jpg"}) {
    SCOPED_TRACE(name);
    const auto picture = loader_.LoadPicture(PathOf(name));
    EXPECT_EQ(picture->WidthInPixels(), 7);
    EXPECT_EQ(picture->HeightInPixels(), 5);
    EXPECT_EQ(dynamic_cast<const QtPicture&>(*picture).ImageData().devicePixelRatio(), 1);
  }
}

TEST_F(Pictures, ThatCannotBeShownAreRefusedAtOnce) {
  Put("text.gif", "<HTML></HTML>");
  Put("empty.png", "");
  // A bitmap's header alone that promises 10000 by 10000 pixels of 32 bits.
  Put("bomb.bmp",
      QByteArray::fromHex("424d3600000000000000360000002800000010270000102700000100200000"
                          "0000000000000000000000000000000000000000000000"));
  ASSERT_EQ(mkfifo(PathOf("pipe.gif").c_str(), 0600), 0);
  const std::pair<const char*, ErrorCode> faults[] = {
      {"text.gif", ErrorCode::kOther},       {"empty.png", ErrorCode::kOther},
      {"bomb.bmp", ErrorCode::kOutOfMemory}, {"pipe.gif", ErrorCode::kNotARegularFile},
      {".", ErrorCode::kNotARegularFile},    {"missing.gif", ErrorCode::kFileNotFound}};
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
