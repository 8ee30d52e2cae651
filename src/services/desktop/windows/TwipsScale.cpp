#include "services/desktop/windows/TwipsScale.h"

#include <QFontMetricsF>
#include <QString>
#include <algorithm>
#include <cmath>

namespace tagsmith {
namespace {

// What one letter of the alphabet and one line take of the font that the geometry was made for.
constexpr double kLetterWidth = 6;
constexpr double kLineHeight = 13;
constexpr double kReserve = 1.05;

}  // namespace

TwipsScale TwipsScale::ForFont(const QFont& font) {
  const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
  const QFontMetricsF metrics(font);
  const double width =
      metrics.horizontalAdvance(letters) / static_cast<double>(letters.size()) / kLetterWidth;
  return TwipsScale(std::max({1.0, width, metrics.height() / kLineHeight}) * kReserve);
}

int TwipsScale::ToPixels(Twips twips) const {
  return static_cast<int>(std::lround(twips * factor_ / kTwipsPerPixel));
}

Twips TwipsScale::ToTwips(int pixels) const {
  return static_cast<Twips>(std::lround(pixels * kTwipsPerPixel / factor_));
}

QSize TwipsScale::ToPixels(Twips width, Twips height) const {
  return {ToPixels(width), ToPixels(height)};
}

QRect TwipsScale::ToPixels(const TwipsRect& rect) const {
  const QPoint from(ToPixels(rect.left), ToPixels(rect.top));
  const QPoint to(ToPixels(rect.left + rect.width), ToPixels(rect.top + rect.height));
  return {from, QSize(to.x() - from.x(), to.y() - from.y())};
}

}  // namespace tagsmith
