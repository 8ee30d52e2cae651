#include "services/desktop/editpane/PaneColours.h"

#include <QPalette>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace tagsmith {
namespace {

constexpr double kLegible = 4.5;
constexpr float kMiddleLightness = 0.5F;

// In the order of Token; the text itself comes from the desktop.
constexpr std::array<QRgb, kTokenCount> kLightTokens = {0x000000, 0x1750A8, 0x8A4B08, 0x1B7037,
                                                        0x8B1A89, 0x66707A, 0x6F3FB0, 0xB0203A,
                                                        0x9A4A1E, 0x0B6E75};
constexpr std::array<QRgb, kTokenCount> kDarkTokens = {0xFFFFFF, 0x7AB8F5, 0xE0B070, 0x9CD68C,
                                                       0xD8A0E6, 0x95A0AC, 0xC5A5F5, 0xF28B8B,
                                                       0xE8A36B, 0x6FD0D0};

// The relative luminance of WCAG 2.1: linear light from an sRGB value, weighted for the eye.
double Luminance(const QColor& colour) {
  const auto linear = [](float value) {
    return value <= 0.04045F ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

// `share` of `over`, the rest of `under`.
QColor Blend(const QColor& under, const QColor& over, float share) {
  const auto mix = [share](float a, float b) { return a + (b - a) * share; };
  const QColor exact =
      QColor::fromRgbF(mix(under.redF(), over.redF()), mix(under.greenF(), over.greenF()),
                       mix(under.blueF(), over.blueF()));
  // As the screen shows it.
  return QColor::fromRgb(exact.rgb());
}

// `colour`, moved towards black or white until it can be read on all backgrounds.
QColor Legible(const QColor& colour, std::initializer_list<QColor> backgrounds) {
  const auto contrast = [&](const QColor& candidate) {
    double least = std::numeric_limits<double>::max();
    for (const QColor& background : backgrounds) {
      least = std::min(least, ContrastRatio(candidate, background));
    }
    return least;
  };
  const QColor extreme = contrast(Qt::white) > contrast(Qt::black) ? Qt::white : Qt::black;
  constexpr int kSteps = 20;
  for (int step = 0; step < kSteps; ++step) {
    const QColor candidate = Blend(colour, extreme, static_cast<float>(step) / kSteps);
    if (contrast(candidate) >= kLegible) return candidate;
  }
  return extreme;
}

}  // namespace

double ContrastRatio(const QColor& left, const QColor& right) {
  const auto [darker, lighter] = std::minmax({Luminance(left), Luminance(right)});
  return (lighter + 0.05) / (darker + 0.05);
}

PaneColours ColoursFor(const QPalette& palette) {
  const auto get = [&palette](QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
  };
  const QColor base = get(QPalette::Base);
  const QColor text = get(QPalette::Text);
  const bool dark = base.lightnessF() < kMiddleLightness;

  PaneColours colours;
  colours.background = base;
  colours.currentLine = Blend(base, text, dark ? 0.07F : 0.045F);
  colours.caret = text;
  colours.marginBackground = Blend(base, text, 0.03F);
  colours.marginText = Legible(Blend(base, text, 0.5F), {colours.marginBackground});
  colours.selection = get(QPalette::Highlight);
  colours.selectedText = get(QPalette::HighlightedText);
  colours.match = get(QPalette::Highlight);
  const QColor matched = Blend(colours.currentLine, colours.match, kMatchTint);

  const auto& tokens = dark ? kDarkTokens : kLightTokens;
  for (std::size_t i = 0; i < kTokenCount; ++i) {
    const QColor wanted = i == 0 ? text : QColor::fromRgb(tokens.at(i));
    colours.tokens.at(i) = Legible(wanted, {base, colours.currentLine, matched});
  }
  return colours;
}

}  // namespace tagsmith
