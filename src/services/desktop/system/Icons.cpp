#include "services/desktop/system/Icons.h"

#include <QByteArray>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>
#include <utility>

namespace tagsmith {
namespace {

struct ColourPair {
  const char* light;
  const char* dark;
};

// The colours the button icons are drawn in, and what stands for them on a dark window.
constexpr std::array<ColourPair, 7> kColours = {{{"#24292f", "#e6edf3"},
                                                 {"#6e7781", "#8b949e"},
                                                 {"#0969da", "#58a6ff"},
                                                 {"#1a7f37", "#3fb950"},
                                                 {"#bc4c00", "#f0883e"},
                                                 {"#cf222e", "#ff7b72"},
                                                 {"#ffffff", "#1c2128"}}};

constexpr qreal kDisabledOpacity = 0.35;
constexpr qsizetype kMostPixmaps = 16;

enum class Colours { kAsDrawn, kByTheme };

QString ResourceOf(const QString& name) { return QStringLiteral(":/icons/%1.svg").arg(name); }

bool IsDesktopDark() {
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

QByteArray ReadDrawing(const QString& resource, bool dark) {
  QFile file(resource);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray drawing = file.readAll();
  if (dark) {
    for (const ColourPair& colour : kColours) drawing.replace(colour.light, colour.dark);
  }
  return drawing;
}

class SvgIconEngine final : public QIconEngine {
 public:
  SvgIconEngine(QString resource, Colours colours)
      : resource_(std::move(resource)), colours_(colours) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatio();
    QPixmap drawn = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
    drawn.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect, drawn);
  }

  // `size` is in device pixels.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    if (size.isEmpty()) return {};
    const bool disabled = mode == QIcon::Disabled;
    const bool dark = colours_ == Colours::kByTheme && IsDesktopDark();
    const Look look{size, {disabled, dark}};
    const auto known = pixmaps_.constFind(look);
    if (known != pixmaps_.constEnd()) return *known;
    if (pixmaps_.size() >= kMostPixmaps) pixmaps_.clear();
    return *pixmaps_.insert(look, Draw(size, disabled, dark));
  }

  QIconEngine* clone() const override { return new SvgIconEngine(resource_, colours_); }

  QString key() const override { return QStringLiteral("tagsmith-svg"); }

 private:
  using Look = std::pair<QSize, std::pair<bool, bool>>;

  QPixmap Draw(const QSize& size, bool disabled, bool dark) const {
    QSvgRenderer renderer(ReadDrawing(resource_, dark));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QImage canvas(size, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    renderer.render(&painter);
    painter.end();
    return QPixmap::fromImage(disabled ? Faded(canvas) : std::move(canvas));
  }

  // The finished drawing is faded as a whole, so that what lies beneath a shape stays hidden.
  static QImage Faded(const QImage& drawn) {
    QImage faded(drawn.size(), drawn.format());
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(kDisabledOpacity);
    painter.drawImage(0, 0, drawn);
    return faded;
  }

  QString resource_;
  Colours colours_;
  QHash<Look, QPixmap> pixmaps_;
};

QIcon IconOf(const QString& name, Colours colours) {
  const QString resource = ResourceOf(name);
  return QFile::exists(resource) ? QIcon(new SvgIconEngine(resource, colours)) : QIcon();
}

}  // namespace

QIcon ButtonIcon(const QString& name) { return IconOf(name, Colours::kByTheme); }

QIcon ApplicationIcon() { return IconOf(QStringLiteral("tagsmith"), Colours::kAsDrawn); }

}  // namespace tagsmith
