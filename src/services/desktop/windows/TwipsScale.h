#pragma once

#include <QFont>
#include <QRect>
#include <QSize>

#include "services/Units.h"

namespace tagsmith {

/// Turns twips into logical pixels and back: 15 twips are one pixel times a factor that grows with
/// the desktop's font, so that no caption is cut.
class TwipsScale {
 public:
  explicit TwipsScale(double factor) : factor_(factor) {}
  /// The factor at which texts in `font` find the room that the geometry in twips leaves for them.
  static TwipsScale ForFont(const QFont& font);

  double Factor() const { return factor_; }
  /// Rounds to the nearest pixel.
  int ToPixels(Twips twips) const;
  /// `ToPixels(ToTwips(p))` is `p`.
  Twips ToTwips(int pixels) const;
  QSize ToPixels(Twips width, Twips height) const;
  /// Rounds each edge for itself: rectangles that meet in twips meet in pixels.
  QRect ToPixels(const TwipsRect& rect) const;

 private:
  double factor_;
};

}  // namespace tagsmith
