#pragma once

#include <QPaintDevice>
#include <QPaintEngine>

class QPainter;

namespace tagsmith {

/// Passes drawing on to a painter and draws lines under or through all text, as thick as the font
/// wants them. The edit component's own are one pixel thin, which nobody sees on paper.
class LinedText final : public QPaintDevice, private QPaintEngine {
 public:
  /// `target` is at work, without a transformation, and outlives this.
  LinedText(QPainter& target, bool underline, bool strikeThrough);

 private:
  QPaintEngine* paintEngine() const override;
  int metric(PaintDeviceMetric metric) const override;

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState& changed) override;
  void drawTextItem(const QPointF& place, const QTextItem& item) override;
  void drawPath(const QPainterPath& path) override;
  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override;
  void drawPixmap(const QRectF& place, const QPixmap& pixmap, const QRectF& part) override;

  QPainter& target_;
  bool underline_;
  bool strikeThrough_;
};

}  // namespace tagsmith
