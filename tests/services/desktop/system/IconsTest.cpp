#include "services/desktop/system/Icons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <algorithm>

namespace tagsmith {
namespace {

void SetWindowColour(const QColor& colour) {
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Window, colour);
  QApplication::setPalette(palette);
}

QImage Drawn(const QIcon& icon, int size, qreal ratio = 1, QIcon::Mode mode = QIcon::Normal) {
  return icon.pixmap(QSize(size, size), ratio, mode).toImage();
}

// The strength of the most opaque pixel.
int Strongest(const QImage& image) {
  int strongest = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      strongest = std::max(strongest, qAlpha(image.pixel(x, y)));
    }
  }
  return strongest;
}

TEST(Icons, AreAllDrawnAtEveryRatioInTheColoursOfTheDesktop) {
  const QPalette before = QApplication::palette();
  const QStringList files = QDir(":/icons").entryList({"*.svg"});
  EXPECT_GT(files.size(), 100);
  for (const QString& file : files) {
    SCOPED_TRACE(file.toStdString());
    const QIcon icon = file == "tagsmith.svg" ? ApplicationIcon() : ButtonIcon(file.chopped(4));
    SetWindowColour(Qt::white);
    const QImage light = Drawn(icon, 16);
    const QImage sharp = Drawn(icon, 16, 2);
    SetWindowColour(QColor(30, 30, 30));
    const QImage dark = Drawn(icon, 16);
    EXPECT_EQ(light.size(), QSize(16, 16));
    EXPECT_EQ(sharp.size(), QSize(32, 32));
    EXPECT_GT(Strongest(light), 100);
    EXPECT_NE(sharp, light.scaled(32, 32).convertToFormat(sharp.format()));
    EXPECT_EQ(dark == light, file == "tagsmith.svg");
  }
  QApplication::setPalette(before);
}

TEST(Icons, FadeWhenDisabledAreNullWhenUnknownAndFillADenseScreen) {
  const QIcon bold = ButtonIcon("cmdBold");
  const int faded = Strongest(Drawn(bold, 16, 1, QIcon::Disabled));
  EXPECT_GT(faded, 0);
  EXPECT_LT(faded, Strongest(Drawn(bold, 16)) / 2);
  EXPECT_TRUE(ButtonIcon("cmdNone").isNull());
  EXPECT_FALSE(QApplication::windowIcon().isNull());

  QImage screen(32, 32, QImage::Format_ARGB32_Premultiplied);
  screen.setDevicePixelRatio(2);
  screen.fill(Qt::transparent);
  QPainter painter(&screen);
  bold.paint(&painter, QRect(0, 0, 16, 16));
  painter.end();
  EXPECT_EQ(screen, Drawn(bold, 16, 2).convertToFormat(screen.format()));
}

}  // namespace
}  // namespace tagsmith
