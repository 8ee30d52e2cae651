// Groups whose text is no part of the document's, or that stand for something else (Rich Text
// Format 1.9.1, "Header", "Information Group", "Fields", "Bookmarks", "Footnotes").

#include "services/rtf/CodePages.h"
#include "services/rtf/ControlWords.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

void Skip(Interpreter& interpreter, const Control&) { interpreter.SkipGroup(); }

// Words that let the group around them be known with the star before them.
void PassOn(Interpreter&, const Control&) {}

void EnterFontTable(Interpreter& interpreter, const Control&) {
  interpreter.EnterDestination(Destination::kFontTable, GroupEnd::kFontTable);
}

constexpr std::string_view kFamilies[] = {"",          "serif",   "sans-serif",
                                          "monospace", "cursive", "fantasy"};

bool IsInFontTable(Interpreter& interpreter) {
  return interpreter.State().destination == Destination::kFontTable;
}

void SetFamily(Interpreter& interpreter, const Control& control) {
  if (IsInFontTable(interpreter)) interpreter.fonts.SetFamily(kFamilies[control.value]);
}

void SetCharset(Interpreter& interpreter, const Control& control) {
  if (!IsInFontTable(interpreter)) return;
  interpreter.fonts.SetCodePage(CodePageOfCharset(control.parameter));
}

void SetFontCodePage(Interpreter& interpreter, const Control& control) {
  if (!IsInFontTable(interpreter) || control.parameter <= 0) return;
  interpreter.fonts.SetCodePage(control.parameter);
}

void EnterColourTable(Interpreter& interpreter, const Control&) {
  interpreter.EnterDestination(Destination::kColourTable);
}

void SetComponent(Interpreter& interpreter, const Control& control) {
  if (interpreter.State().destination != Destination::kColourTable) return;
  interpreter.colours.SetComponent(control.value, control.parameter);
}

void EnterStyleSheet(Interpreter& interpreter, const Control&) {
  interpreter.EnterDestination(Destination::kStyleSheet);
}

void EnterInfo(Interpreter& interpreter, const Control&) {
  interpreter.EnterDestination(Destination::kInfo);
}

void EnterTitle(Interpreter& interpreter, const Control&) {
  if (interpreter.State().destination != Destination::kInfo) return interpreter.SkipGroup();
  interpreter.EnterCapture(GroupEnd::kTitle);
}

void EnterTwoVersions(Interpreter& interpreter, const Control&) {
  const Destination around = interpreter.State().destination;
  if (!interpreter.EnterDestination(Destination::kAnsiVersion)) return;
  interpreter.State().outerDestination = around;
}

void EnterUnicodeVersion(Interpreter& interpreter, const Control&) {
  GroupState& state = interpreter.State();
  if (state.destination == Destination::kAnsiVersion) state.destination = state.outerDestination;
}

void EnterField(Interpreter& interpreter, const Control&) { interpreter.BeginField(); }
void EnterInstruction(Interpreter& interpreter, const Control&) { interpreter.BeginInstruction(); }
void EnterResult(Interpreter& interpreter, const Control&) { interpreter.BeginResult(); }
void EnterNote(Interpreter& interpreter, const Control&) { interpreter.BeginNote(); }

// A note's number stands before its text; the writer brings its own.
void PutNoteNumber(Interpreter& interpreter, const Control&) {
  if (interpreter.State().destination == Destination::kBody) interpreter.body.SkipBlanks();
}

void EnterBookmark(Interpreter& interpreter, const Control&) {
  if (interpreter.State().destination != Destination::kBody) return interpreter.SkipGroup();
  interpreter.EnterCapture(GroupEnd::kBookmark);
}

constexpr ControlWord kWords[] = {
    {"fonttbl", EnterFontTable},
    {"fnil", SetFamily, 0},
    {"froman", SetFamily, 1},
    {"fswiss", SetFamily, 2},
    {"fmodern", SetFamily, 3},
    {"fscript", SetFamily, 4},
    {"fdecor", SetFamily, 5},
    {"ftech", SetFamily, 0},
    {"fbidi", SetFamily, 0},
    {"fcharset", SetCharset},
    {"cpg", SetFontCodePage},
    {"colortbl", EnterColourTable},
    {"red", SetComponent, 0},
    {"green", SetComponent, 1},
    {"blue", SetComponent, 2},
    {"stylesheet", EnterStyleSheet},
    {"info", EnterInfo},
    {"title", EnterTitle},
    {"upr", EnterTwoVersions},
    {"ud", EnterUnicodeVersion},
    {"field", EnterField},
    {"fldinst", EnterInstruction},
    {"fldrslt", EnterResult},
    {"bkmkstart", EnterBookmark},
    {"footnote", EnterNote},
    {"chftn", PutNoteNumber},
    {"shppict", PassOn},
    {"picprop", PassOn},
    {"header", Skip},
    {"headerl", Skip},
    {"headerr", Skip},
    {"headerf", Skip},
    {"footer", Skip},
    {"footerl", Skip},
    {"footerr", Skip},
    {"footerf", Skip},
    {"falt", Skip},
    {"panose", Skip},
    {"fontemb", Skip},
    {"fontfile", Skip},
    {"filetbl", Skip},
    {"revtbl", Skip},
    {"keycode", Skip},
    {"template", Skip},
    {"userprops", Skip},
    {"listpicture", Skip},
    {"leveltext", Skip},
    {"levelnumbers", Skip},
    {"listname", Skip},
    {"liststylename", Skip},
    {"pntxta", Skip},
    {"pntxtb", Skip},
    {"pnseclvl", Skip},
    {"nonshppict", Skip},
    {"shprslt", Skip},
    {"nonesttables", Skip},
    {"objdata", Skip},
    {"objclass", Skip},
    {"objname", Skip},
    {"ftnsep", Skip},
    {"ftnsepc", Skip},
    {"ftncn", Skip},
    {"aftnsep", Skip},
    {"aftnsepc", Skip},
    {"aftncn", Skip},
    {"datafield", Skip},
    {"formfield", Skip},
    {"xe", Skip},
    {"tc", Skip},
    {"tcn", Skip},
    {"rxe", Skip},
    {"txe", Skip},
    {"private", Skip},
};

}  // namespace

std::span<const ControlWord> DestinationWords() { return kWords; }

}  // namespace tagsmith::rtf
