#include "services/desktop/windows/GraphicViews.h"

#include <QGroupBox>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "services/desktop/system/Icons.h"
#include "services/desktop/system/QtPictures.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/Colours.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

// A pen runs with its middle along the line: this far from the edge it stays inside, whatever the
// pixels of the display are.
constexpr double kHalfPen = 0.5;

constexpr int kBorder = 1;
constexpr QColor kEmptyGround(0xA0, 0xA0, 0xA0);

void DrawBorder(QPainter& painter, const QWidget& widget) {
  painter.setPen(RimColour(widget.palette()));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawRect(QRectF(widget.rect()).adjusted(kHalfPen, kHalfPen, -kHalfPen, -kHalfPen));
}

}  // namespace

/// A filled rectangle with a thin border.
class Figure final : public QWidget {
 public:
  explicit Figure(QWidget* parent) : QWidget(parent) {}

  /// An invalid colour stands for the desktop's own.
  void SetFill(const QColor& fill) {
    fill_ = fill;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), fill_.isValid() ? fill_ : palette().color(QPalette::Base));
    DrawBorder(painter, *this);
  }

 private:
  QColor fill_;
};

/// A picture or an icon. With a border, what shines through a picture stands on white, as on most
/// pages, and the place of a missing one is grey.
class PictureFace final : public QWidget {
 public:
  PictureFace(double scale, bool hasBorder, QWidget* parent)
      : QWidget(parent), scale_(hasBorder ? 1 : scale), border_(hasBorder ? kBorder : 0) {}

  void SetPicture(const QImage& picture, const QIcon& icon) {
    picture_ = picture;
    icon_ = icon;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    if (!icon_.isNull()) icon_.paint(&painter, rect(), Qt::AlignLeft | Qt::AlignTop);
    if (border_ > 0) painter.fillRect(rect(), picture_.isNull() ? kEmptyGround : QColor(Qt::white));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(border_, border_), QSizeF(picture_.size()) * scale_),
                      picture_);
    if (border_ > 0) DrawBorder(painter, *this);
  }

 private:
  double scale_;
  int border_;
  QImage picture_;
  QIcon icon_;
};

namespace {

constexpr Twips kShapeWidth = 900;
constexpr Twips kShapeHeight = 330;
constexpr int kMiddleLightness = 128;

class Stroke final : public QWidget {
 public:
  Stroke(bool faint, QWidget* parent) : QWidget(parent), faint_(faint) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(faint_ ? RimColour(palette()) : palette().color(QPalette::WindowText));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(QPointF(kHalfPen, kHalfPen), QPointF(width() - kHalfPen, height() - kHalfPen));
  }

 private:
  bool faint_;
};

}  // namespace

FrameView::FrameView(Frame& control, ViewHost& host, QWidget& parent) : ViewOf(control, host) {
  Adopt(new QGroupBox(ToQString(control.Caption()), &parent));
}

ShapeView::ShapeView(Shape& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), figure_(new Figure(&parent)) {
  Adopt(figure_);
  Update(Property::kBackColor);
  Resized();
}

void ShapeView::Update(Property /*property*/) { figure_->SetFill(ToQColor(model_.FillColor())); }

void ShapeView::Resized() {
  const Twips width = model_.Width() > 0 ? model_.Width() : kShapeWidth;
  const Twips height = model_.Height() > 0 ? model_.Height() : kShapeHeight;
  figure_->setMinimumSize(Host().Scale().ToPixels(width, height));
}

LineView::LineView(Line& control, ViewHost& host, QWidget& parent) : ViewOf(control, host) {
  Adopt(new Stroke(/*faint=*/StandsInLayout(), &parent));
}

// The last point of a line belongs to it.
QRect LineView::WantedPlace() const { return WidgetView::WantedPlace().adjusted(0, 0, 1, 1); }

PictureBoxView::PictureBoxView(PictureBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), figure_(new Figure(&parent)) {
  Adopt(figure_);
  Update(Property::kBackColor);
  Resized();
}

void PictureBoxView::Update(Property property) {
  if (property != Property::kBackColor && property != Property::kForeColor) return;
  if (model_.BackColor() < 0) return figure_->SetFill(QColor());
  const QColor ground = ToQColor(model_.BackColor());
  figure_->SetFill(ground);
  // What stands on it and has no colour of its own would take the desktop's, legible or not.
  QPalette palette = figure_->palette();
  palette.setColor(QPalette::WindowText,
                   ground.lightness() < kMiddleLightness ? Qt::white : Qt::black);
  if (model_.ForeColor() < 0) figure_->setPalette(palette);
}

void PictureBoxView::Resized() {
  figure_->setFixedSize(Host().Scale().ToPixels(model_.Width(), model_.Height()));
}

ImageView::ImageView(Image& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      face_(new PictureFace(host.Scale().Factor(), control.HasBorder(), &parent)) {
  Adopt(face_);
  Update(Property::kPicture);
  Resized();
}

void ImageView::Update(Property property) {
  if (property != Property::kPicture) return;
  const auto* picture = dynamic_cast<const QtPicture*>(model_.GetPicture().get());
  const QIcon icon =
      model_.PictureName().empty() ? QIcon() : ButtonIcon(ToQString(model_.PictureName()));
  face_->SetPicture(picture != nullptr ? picture->ImageData() : QImage(), icon);
}

void ImageView::Resized() {
  face_->setMinimumSize(Host().Scale().ToPixels(model_.Width(), model_.Height()));
}

QRect ImageView::WantedPlace() const {
  QRect place = WidgetView::WantedPlace();
  if (!model_.HasBorder()) return place;
  if (const auto& picture = model_.GetPicture()) {
    place.setSize({picture->WidthInPixels(), picture->HeightInPixels()});
  }
  return place.adjusted(-kBorder, -kBorder, kBorder, kBorder);
}

}  // namespace tagsmith
