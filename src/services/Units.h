#pragma once

#include <string>

namespace tagsmith {

/// A length on the screen or on paper: 1440 to the inch, 15 to a logical pixel.
using Twips = int;

constexpr Twips kTwipsPerInch = 1440;

/// What `Screen.TwipsPerPixelX` and `Screen.TwipsPerPixelY` give, at every scale of the desktop.
constexpr Twips kTwipsPerPixel = 15;

/// What a form's outer size has beyond its client area: the window's edges in width; edges, title
/// bar and menu bar in height. Fixed, whatever the window manager draws.
constexpr Twips kFormExtraWidth = 120;
constexpr Twips kFormExtraHeight = 690;

/// A colour value: red in the lowest byte, green in the middle, blue in the highest of 24 bits.
using Colour = int;

constexpr Colour kWhite = 0xFFFFFF;
constexpr Colour kBlack = 0;

struct TwipsRect {
  Twips left = 0;
  Twips top = 0;
  Twips width = 0;
  Twips height = 0;

  bool operator==(const TwipsRect&) const = default;
};

/// A font as the font dialog and the edit pane know it. `size` is in points.
struct FontSpec {
  std::string name;
  double size = 12;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeThru = false;

  bool operator==(const FontSpec&) const = default;
};

}  // namespace tagsmith
