#pragma once

#include <QColor>
#include <QPalette>

#include "services/Units.h"

namespace tagsmith {

/// `colour` has red in its lowest byte.
inline QColor ToQColor(Colour colour) {
  constexpr int kByte = 0xFF;
  return {colour & kByte, (colour >> 8) & kByte, (colour >> 16) & kByte};
}

/// The colour of a thin border that shows on light and dark, but not much.
inline QColor RimColour(const QPalette& palette) {
  constexpr int kFaint = 80;
  QColor rim = palette.color(QPalette::WindowText);
  rim.setAlpha(kFaint);
  return rim;
}

}  // namespace tagsmith
