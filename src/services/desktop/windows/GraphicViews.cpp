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
    painter.setPen(RimColour(palette()));
    painter.setBrush(fill_.isValid() ? fill_ : palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  QColor fill_;
};

/// A picture or an icon.
class PictureFace final : public QWidget {
 public:
  PictureFace(double scale, QWidget* parent) : QWidget(parent), scale_(scale) {}

  void SetPicture(const QImage& picture, const QIcon& icon) {
    picture_ = picture;
    icon_ = icon;
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    if (!icon_.isNull()) icon_.paint(&painter, rect(), Qt::AlignLeft | Qt::AlignTop);
    if (picture_.isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(), QSizeF(picture_.size()) * scale_), picture_);
  }

 private:
  double scale_;
  QImage picture_;
  QIcon icon_;
};

namespace {

constexpr Twips kShapeWidth = 900;
constexpr Twips kShapeHeight = 330;

class Stroke final : public QWidget {
 public:
  explicit Stroke(QWidget* parent) : QWidget(parent) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawLine(0, 0, width() - 1, height() - 1);
  }
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
  if (StandsByBounds()) return;
  const Twips width = model_.Width() > 0 ? model_.Width() : kShapeWidth;
  const Twips height = model_.Height() > 0 ? model_.Height() : kShapeHeight;
  figure_->setMinimumSize(Host().Scale().ToPixels(width, height));
}

LineView::LineView(Line& control, ViewHost& host, QWidget& parent) : ViewOf(control, host) {
  Adopt(new Stroke(&parent));
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
  if (property != Property::kBackColor) return;
  figure_->SetFill(model_.BackColor() >= 0 ? ToQColor(model_.BackColor()) : QColor());
}

void PictureBoxView::Resized() {
  figure_->setFixedSize(Host().Scale().ToPixels(model_.Width(), model_.Height()));
}

ImageView::ImageView(Image& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), face_(new PictureFace(host.Scale().Factor(), &parent)) {
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

}  // namespace tagsmith
