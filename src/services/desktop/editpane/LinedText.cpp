#include "services/desktop/editpane/LinedText.h"

#include <QFontMetricsF>
#include <QPainter>

namespace tagsmith {

LinedText::LinedText(QPainter& target, bool underline, bool strikeThrough)
    : QPaintEngine(QPaintEngine::AllFeatures),
      target_(target),
      underline_(underline),
      strikeThrough_(strikeThrough) {}

QPaintEngine* LinedText::paintEngine() const {
  // The base class hands out its engine as one that may be changed.
  return const_cast<LinedText*>(this);  // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

int LinedText::metric(PaintDeviceMetric metric) const {
  const QPaintDevice& device = *target_.device();
  switch (metric) {
    case PdmWidth:
      return device.width();
    case PdmHeight:
      return device.height();
    case PdmWidthMM:
      return device.widthMM();
    case PdmHeightMM:
      return device.heightMM();
    case PdmDpiX:
      return device.logicalDpiX();
    case PdmDpiY:
      return device.logicalDpiY();
    case PdmPhysicalDpiX:
      return device.physicalDpiX();
    case PdmPhysicalDpiY:
      return device.physicalDpiY();
    case PdmNumColors:
      return device.colorCount();
    case PdmDepth:
      return device.depth();
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return static_cast<int>(devicePixelRatioFScale());
    default:
      return QPaintDevice::metric(metric);
  }
}

void LinedText::updateState(const QPaintEngineState& changed) {
  target_.setPen(changed.pen());
  target_.setBrush(changed.brush());
}

void LinedText::drawTextItem(const QPointF& place, const QTextItem& item) {
  target_.drawTextItem(place, item);
  const QFontMetricsF metrics(item.font(), this);
  const qreal thickness = metrics.lineWidth();
  const auto line = [&](qreal y) {
    target_.fillRect(QRectF(place.x(), place.y() + y - thickness / 2, item.width(), thickness),
                     target_.pen().color());
  };
  if (underline_) line(metrics.underlinePos());
  if (strikeThrough_) line(-metrics.strikeOutPos());
}

void LinedText::drawPath(const QPainterPath& path) { target_.drawPath(path); }

void LinedText::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) {
  if (mode == PolylineMode) return target_.drawPolyline(points, count);
  target_.drawPolygon(points, count, mode == OddEvenMode ? Qt::OddEvenFill : Qt::WindingFill);
}

void LinedText::drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) {
  target_.drawPixmap(place, pixmap, part);
}

}  // namespace tagsmith
