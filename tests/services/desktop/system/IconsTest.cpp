#include "services/desktop/system/Icons.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

namespace tagsmith {
namespace {

TEST(Icons, AreAllDrawnAtEveryRatio) {
  const QStringList files = QDir(":/icons").entryList({"*.svg"});
  EXPECT_GT(files.size(), 100);
  QImage blank(16, 16, QImage::Format_ARGB32_Premultiplied);
  blank.fill(Qt::transparent);
  for (const QString& file : files) {
    const QIcon icon = file == "tagsmith.svg" ? ApplicationIcon() : ButtonIcon(file.chopped(4));
    const QImage plain = icon.pixmap(QSize(16, 16), 1).toImage();
    const QImage sharp = icon.pixmap(QSize(16, 16), 2).toImage();
    EXPECT_NE(plain, blank) << file.toStdString();
    EXPECT_NE(sharp, plain.scaled(32, 32).convertToFormat(sharp.format())) << file.toStdString();
  }
  EXPECT_TRUE(ButtonIcon("cmdNone").isNull());
}

}  // namespace
}  // namespace tagsmith
