#include "dialogs/Tags.h"

#include "core/general1.h"
#include "dialogs/Attributes.h"

namespace tagsmith::dialogs {

std::string ColourValue(const ColourFields& fields) {
  return "\"" + (fields.isNamed ? fields.name : "#" + ColourText(fields.colour)) + "\"";
}

std::string AnchorTag(const AnchorFields& fields) {
  std::string tag = "<A";
  AppendAttribute(tag, "HREF", fields.url);
  AppendIfFilled(tag, "Target", fields.target);
  AppendIfFilled(tag, "Name", fields.name);
  AppendIfFilled(tag, "Id", fields.id);
  return tag.append(">").append(Trim(fields.text)).append("</A>");
}

std::string CommentTag(const std::string& text) {
  return std::string("<!-- ").append(Trim(text)).append(" -->");
}

std::string ImageTag(const ImageFields& fields) {
  std::string tag = "<IMG";
  AppendAttribute(tag, "Src", fields.url);
  AppendIfFilled(tag, "Alt", fields.alt);
  AppendIfFilled(tag, "Height", fields.height);
  AppendIfFilled(tag, "Width", fields.width);
  AppendIfFilled(tag, "HSpace", fields.hSpace);
  AppendIfFilled(tag, "VSpace", fields.vSpace);
  AppendIfFilled(tag, "Border", fields.border);
  AppendIfFilled(tag, "DynSrc", fields.dynSrc);
  AppendIfFilled(tag, "Loop", fields.loop);
  AppendIfFilled(tag, "Align", fields.align);
  AppendIfFilled(tag, "Id", fields.id);
  return tag + ">";
}

std::string LineTag(const LineFields& fields) {
  std::string tag = "<HR";
  AppendIfFilled(tag, "Align", fields.align);
  AppendIfFilled(tag, "Size", fields.size);
  AppendIfFilled(tag, "Width", fields.width);
  AppendColour(tag, "Color", fields.colour);
  AppendIfFilled(tag, "Id", fields.id);
  return tag + ">";
}

std::string MarqueeTag(const MarqueeFields& fields) {
  std::string tag = "<MARQUEE";
  AppendIfFilled(tag, "Height", fields.height);
  AppendIfFilled(tag, "Width", fields.width);
  AppendIfFilled(tag, "HSpace", fields.hSpace);
  AppendIfFilled(tag, "VSpace", fields.vSpace);
  AppendIfFilled(tag, "ScrollAmount", fields.scrollAmount);
  AppendIfFilled(tag, "ScrollDelay", fields.scrollDelay);
  AppendIfFilled(tag, "Align", fields.align);
  AppendIfFilled(tag, "Behavior", fields.behavior);
  AppendIfFilled(tag, "Direction", fields.direction);
  AppendIfFilled(tag, "Loop", fields.loop);
  AppendColour(tag, "BgColor", fields.background);
  AppendIfFilled(tag, "Id", fields.id);
  tag += ">";
  if (!fields.text.empty()) tag.append(Trim(fields.text)).append("</MARQUEE>");
  return tag;
}

}  // namespace tagsmith::dialogs
