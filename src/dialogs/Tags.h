#pragma once

#include <string>

#include "services/Units.h"

namespace tagsmith::dialogs {

// What the small dialogs make, from what stands in their fields. The members are the fields' texts
// as typed, in the order in which they are written.

struct ColourFields {
  bool isNamed = false;
  std::string name;
  Colour colour = kWhite;
};
/// An attribute's value in its quotes: the name of a named colour, `"#RRGGBB"` of any other.
std::string ColourValue(const ColourFields& fields);

struct AnchorFields {
  std::string url;  ///< Written also when it is empty.
  std::string target;
  std::string name;
  std::string id;
  std::string text;  ///< Of the link.
};
/// `<A HREF="...">text</A>`.
std::string AnchorTag(const AnchorFields& fields);

/// `<!-- text -->`, the text without the blanks at its ends; its line breaks stay.
std::string CommentTag(const std::string& text);

struct ImageFields {
  std::string url;  ///< Written also when it is empty.
  std::string alt;
  std::string height;
  std::string width;
  std::string hSpace;
  std::string vSpace;
  std::string border;
  std::string dynSrc;
  std::string loop;
  std::string align;
  std::string id;
};
/// The opening tag: `<IMG Src="...">`.
std::string ImageTag(const ImageFields& fields);

struct LineFields {
  std::string align;
  std::string size;
  std::string width;
  Colour colour = kWhite;
  std::string id;
};
/// `<HR ... Color="#RRGGBB">`.
std::string LineTag(const LineFields& fields);

struct MarqueeFields {
  std::string height;
  std::string width;
  std::string hSpace;
  std::string vSpace;
  std::string scrollAmount;
  std::string scrollDelay;
  std::string align;
  std::string behavior;
  std::string direction;
  std::string loop;
  Colour background = kWhite;
  std::string id;
  std::string text;  ///< What scrolls.
};
/// `<MARQUEE ... BgColor="#RRGGBB">text</MARQUEE>`; without a text the opening tag alone.
std::string MarqueeTag(const MarqueeFields& fields);

}  // namespace tagsmith::dialogs
