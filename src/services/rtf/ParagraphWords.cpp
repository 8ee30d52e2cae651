// How paragraphs look (Rich Text Format 1.9.1, "Paragraph Formatting Properties").

#include "services/rtf/ControlWords.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

constexpr int kLeftToRight = 0;
constexpr int kRightToLeft = 1;

void SetDefaults(Interpreter& interpreter, const Control&) {
  GroupState& state = interpreter.State();
  state.paragraph = {};
  state.isInTable = false;
  state.tableLevel = 0;
  state.listOverride = 0;
  state.listLevel = 0;
  state.oldList = {};
}

template <int ParagraphFormat::*kLength>
void SetLength(Interpreter& interpreter, const Control& control) {
  interpreter.State().paragraph.*kLength = LimitedTwips(control.parameter);
}

void SetAlignment(Interpreter& interpreter, const Control& control) {
  interpreter.State().paragraph.alignment = static_cast<Alignment>(control.value);
}

void SetDirection(Interpreter& interpreter, const Control& control) {
  interpreter.State().paragraph.rightToLeft = control.value == kRightToLeft;
}

void SetPageBreak(Interpreter& interpreter, const Control& control) {
  interpreter.State().paragraph.pageBreakBefore = control.IsOn();
}

void SetBackground(Interpreter& interpreter, const Control& control) {
  interpreter.State().paragraph.background = interpreter.colours.At(control.parameter);
}

void SetStyle(Interpreter& interpreter, const Control& control) {
  if (interpreter.State().destination == Destination::kStyleSheet) {
    interpreter.styles.BeginParagraphStyle(control.parameter);
  } else {
    interpreter.State().paragraph.heading = interpreter.styles.HeadingOf(control.parameter);
  }
}

void BeginOtherStyle(Interpreter& interpreter, const Control&) {
  if (interpreter.State().destination != Destination::kStyleSheet) return;
  interpreter.styles.BeginOtherStyle();
}

void SetBaseStyle(Interpreter& interpreter, const Control& control) {
  interpreter.styles.SetBase(control.parameter);
}

void SetOutlineLevel(Interpreter& interpreter, const Control& control) {
  const int heading = HeadingOfOutlineLevel(control.parameter);
  if (interpreter.State().destination == Destination::kStyleSheet) {
    interpreter.styles.SetHeading(heading);
  } else {
    interpreter.State().paragraph.heading = heading;
  }
}

constexpr int ValueOf(Alignment alignment) { return static_cast<int>(alignment); }

constexpr ControlWord kWords[] = {
    {"pard", SetDefaults},
    {"ql", SetAlignment, ValueOf(Alignment::kLeft)},
    {"qr", SetAlignment, ValueOf(Alignment::kRight)},
    {"qc", SetAlignment, ValueOf(Alignment::kCentre)},
    {"qj", SetAlignment, ValueOf(Alignment::kJustified)},
    {"qd", SetAlignment, ValueOf(Alignment::kJustified)},
    {"li", SetLength<&ParagraphFormat::leftIndent>},
    {"ri", SetLength<&ParagraphFormat::rightIndent>},
    {"fi", SetLength<&ParagraphFormat::firstLineIndent>},
    {"sb", SetLength<&ParagraphFormat::spaceBefore>},
    {"sa", SetLength<&ParagraphFormat::spaceAfter>},
    {"ltrpar", SetDirection, kLeftToRight},
    {"rtlpar", SetDirection, kRightToLeft},
    {"pagebb", SetPageBreak},
    {"cbpat", SetBackground},
    {"s", SetStyle},
    {"cs", BeginOtherStyle},
    {"ds", BeginOtherStyle},
    {"ts", BeginOtherStyle},
    {"sbasedon", SetBaseStyle},
    {"outlinelevel", SetOutlineLevel},
};

}  // namespace

std::span<const ControlWord> ParagraphWords() { return kWords; }

}  // namespace tagsmith::rtf
