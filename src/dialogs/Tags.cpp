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
  AppendFilled(tag, {{"Target", fields.target}, {"Name", fields.name}, {"Id", fields.id}});
  return tag.append(">").append(Trim(fields.text)).append("</A>");
}

std::string CommentTag(const std::string& text) {
  return std::string("<!-- ").append(Trim(text)).append(" -->");
}

std::string ImageTag(const ImageFields& fields) {
  std::string tag = "<IMG";
  AppendAttribute(tag, "Src", fields.url);
  AppendFilled(tag, {{"Alt", fields.alt},
                     {"Height", fields.height},
                     {"Width", fields.width},
                     {"HSpace", fields.hSpace},
                     {"VSpace", fields.vSpace},
                     {"Border", fields.border},
                     {"DynSrc", fields.dynSrc},
                     {"Loop", fields.loop},
                     {"Align", fields.align},
                     {"Id", fields.id}});
  return tag + ">";
}

std::string LineTag(const LineFields& fields) {
  std::string tag = "<HR";
  AppendFilled(tag, {{"Align", fields.align}, {"Size", fields.size}, {"Width", fields.width}});
  AppendColour(tag, "Color", fields.colour);
  AppendFilled(tag, {{"Id", fields.id}});
  return tag + ">";
}

std::string MarqueeTag(const MarqueeFields& fields) {
  std::string tag = "<MARQUEE";
  AppendFilled(tag, {{"Height", fields.height},
                     {"Width", fields.width},
                     {"HSpace", fields.hSpace},
                     {"VSpace", fields.vSpace},
                     {"ScrollAmount", fields.scrollAmount},
                     {"ScrollDelay", fields.scrollDelay},
                     {"Align", fields.align},
                     {"Behavior", fields.behavior},
                     {"Direction", fields.direction},
                     {"Loop", fields.loop}});
  AppendColour(tag, "BgColor", fields.background);
  AppendFilled(tag, {{"Id", fields.id}});
  tag += ">";
  if (!fields.text.empty()) tag.append(Trim(fields.text)).append("</MARQUEE>");
  return tag;
}

}  // namespace tagsmith::dialogs
