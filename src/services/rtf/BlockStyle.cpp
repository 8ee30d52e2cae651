#include "services/rtf/BlockStyle.h"

#include <algorithm>

#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

// The largest page that the format knows, 22 inches: what is more is damage.
constexpr int kLargestLength = 31680;

void AddLength(StyleAttribute& style, std::string_view property, int twips) {
  if (twips != 0) style.AddPoints(property, std::clamp(twips, -kLargestLength, kLargestLength));
}

void AddAlignment(StyleAttribute& style, const ParagraphFormat& format) {
  switch (format.alignment) {
    case Alignment::kLeft:
      if (format.rightToLeft) style.Add("text-align", "left");
      break;
    case Alignment::kRight:
      if (!format.rightToLeft) style.Add("text-align", "right");
      break;
    case Alignment::kCentre:
      style.Add("text-align", "center");
      break;
    case Alignment::kJustified:
      style.Add("text-align", "justify");
      break;
  }
}

}  // namespace

void AppendBlockAttributes(std::string& out, const ParagraphFormat& format, Indents indents) {
  if (format.rightToLeft) out += " dir=\"rtl\"";
  StyleAttribute style(out);
  AddAlignment(style, format);
  if (indents == Indents::kShown) {
    AddLength(style, "margin-left", format.leftIndent);
    AddLength(style, "text-indent", format.firstLineIndent);
  }
  AddLength(style, "margin-right", format.rightIndent);
  AddLength(style, "margin-top", format.spaceBefore);
  AddLength(style, "margin-bottom", format.spaceAfter);
  if (format.background != kAbsent) style.AddColour("background-color", format.background);
  if (format.pageBreakBefore) style.Add("break-before", "page");
  style.Close();
}

}  // namespace tagsmith::rtf
