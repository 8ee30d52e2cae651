// Character sets, Unicode and special characters (Rich Text Format 1.9.1, "Character Set",
// "Unicode RTF" and "Special Characters").

#include <algorithm>

#include "services/rtf/CodePages.h"
#include "services/rtf/ControlWords.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

constexpr int kMostFallback = 1000;

void SetCodePage(Interpreter& interpreter, const Control& control) {
  interpreter.SetDocumentCodePage(control.value);
}

void SetAnsiCodePage(Interpreter& interpreter, const Control& control) {
  if (control.parameter > 0) interpreter.SetDocumentCodePage(control.parameter);
}

void SetDefaultFont(Interpreter& interpreter, const Control& control) {
  interpreter.SetDefaultFont(control.parameter);
}

void SetFallbackLength(Interpreter& interpreter, const Control& control) {
  interpreter.State().fallbackLength = std::clamp(control.ParameterOr(1), 0, kMostFallback);
}

// Values from 32768 on are written as negative ones.
void PutUnicode(Interpreter& interpreter, const Control& control) {
  const int value = control.parameter < 0 ? control.parameter + 0x10000 : control.parameter;
  if (value > 0) interpreter.PutUnicode(static_cast<char32_t>(value));
  interpreter.SkipFallback();
}

void PutCharacter(Interpreter& interpreter, const Control& control) {
  interpreter.PutCharacter(static_cast<char32_t>(control.value));
}

void PutMark(Interpreter& interpreter, const Control& control) {
  interpreter.PutMark(static_cast<RunKind>(control.value));
}

void EndParagraph(Interpreter& interpreter, const Control&) { interpreter.EndParagraph(); }

bool IsInBody(Interpreter& interpreter) {
  return interpreter.State().destination == Destination::kBody;
}

// A page can only begin with a paragraph, so one that it cuts becomes two.
void BreakPage(Interpreter& interpreter, const Control&) {
  if (!IsInBody(interpreter)) return;
  interpreter.EndStartedParagraph();
  interpreter.body.BreakPage();
}

// Columns come below each other.
void BreakColumn(Interpreter& interpreter, const Control&) {
  if (IsInBody(interpreter)) interpreter.EndStartedParagraph();
}

void BreakSection(Interpreter& interpreter, const Control&) {
  if (!IsInBody(interpreter)) return;
  interpreter.EndStartedParagraph();
  interpreter.body.BreakSection();
}

void KeepSectionOnPage(Interpreter& interpreter, const Control&) {
  if (IsInBody(interpreter)) interpreter.body.KeepSectionOnPage();
}

constexpr int kTab = static_cast<int>(RunKind::kTab);
constexpr int kLineBreak = static_cast<int>(RunKind::kLineBreak);

constexpr ControlWord kWords[] = {
    {"ansi", SetCodePage, kWindowsLatin},
    {"mac", SetCodePage, kMacRoman},
    {"pc", SetCodePage, 437},
    {"pca", SetCodePage, 850},
    {"ansicpg", SetAnsiCodePage},
    {"deff", SetDefaultFont},
    {"uc", SetFallbackLength},
    {"u", PutUnicode},
    {"par", EndParagraph},
    {"tab", PutMark, kTab},
    {"line", PutMark, kLineBreak},
    {"lbr", PutMark, kLineBreak},
    {"page", BreakPage},
    {"column", BreakColumn},
    {"sect", BreakSection},
    {"sbknone", KeepSectionOnPage},
    {"sbkcol", KeepSectionOnPage},
    {"emdash", PutCharacter, 0x2014},
    {"endash", PutCharacter, 0x2013},
    {"emspace", PutCharacter, 0x2003},
    {"enspace", PutCharacter, 0x2002},
    {"qmspace", PutCharacter, 0x2005},
    {"bullet", PutCharacter, 0x2022},
    {"lquote", PutCharacter, 0x2018},
    {"rquote", PutCharacter, 0x2019},
    {"ldblquote", PutCharacter, 0x201C},
    {"rdblquote", PutCharacter, 0x201D},
    {"ltrmark", PutCharacter, 0x200E},
    {"rtlmark", PutCharacter, 0x200F},
    {"zwj", PutCharacter, 0x200D},
    {"zwnj", PutCharacter, 0x200C},
    {"zwbo", PutCharacter, 0x200B},
    {"zwnbo", PutCharacter, 0x2060},
};

}  // namespace

std::span<const ControlWord> TextWords() { return kWords; }

}  // namespace tagsmith::rtf
