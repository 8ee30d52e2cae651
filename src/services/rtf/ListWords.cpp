// Lists (Rich Text Format 1.9.1, "List Tables", "Bullets and Numbering", "Paragraph Text").

#include <algorithm>

#include "services/rtf/ControlWords.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

bool IsInListTable(Interpreter& interpreter) {
  return interpreter.State().destination == Destination::kListTable;
}

template <void (ListTables::*kBegin)()>
void InListTable(Interpreter& interpreter, const Control&) {
  if (IsInListTable(interpreter)) (interpreter.lists.*kBegin)();
}

void EnterListTable(Interpreter& interpreter, const Control&) {
  interpreter.EnterDestination(Destination::kListTable);
}

void SetNumbering(Interpreter& interpreter, const Control& control) {
  if (!IsInListTable(interpreter)) return;
  interpreter.lists.SetNumbering(NumberingOfFormat(control.parameter));
}

void SetStart(Interpreter& interpreter, const Control& control) {
  if (IsInListTable(interpreter)) interpreter.lists.SetStart(control.parameter);
}

void SetId(Interpreter& interpreter, const Control& control) {
  if (IsInListTable(interpreter)) interpreter.lists.SetId(control.parameter);
}

void SetOverride(Interpreter& interpreter, const Control& control) {
  if (IsInListTable(interpreter)) {
    interpreter.lists.SetOverrideNumber(control.parameter);
  } else {
    interpreter.State().listOverride = control.parameter;
  }
}

void SetLevel(Interpreter& interpreter, const Control& control) {
  interpreter.State().listLevel = control.parameter;
}

// Word 97 says it twice: a list of the tables, and here, for readers before it, the same again. It
// names the list then.
void EnterOldList(Interpreter& interpreter, const Control&) {
  const bool isInBody = interpreter.State().destination == Destination::kBody;
  if (!isInBody) return interpreter.SkipGroup();
  if (!interpreter.EnterDestination(Destination::kOldList, GroupEnd::kOldList)) return;
  interpreter.State().oldList = {.isThere = true};
  interpreter.State().listOverride = kAbsent;
}

// The list that a \pn group is about; what other groups say goes to one that nobody reads.
OldList& ListOf(Interpreter& interpreter, OldList& none) {
  GroupState& state = interpreter.State();
  return state.destination == Destination::kOldList ? state.oldList : none;
}

void SetOldNumbering(Interpreter& interpreter, const Control& control) {
  OldList none;
  ListOf(interpreter, none).numbering = static_cast<Numbering>(control.value);
}

void SetOldLevel(Interpreter& interpreter, const Control& control) {
  OldList none;
  ListOf(interpreter, none).level =
      static_cast<std::uint8_t>(std::clamp(control.parameter, 1, kListLevels) - 1);
}

void SetOldStart(Interpreter& interpreter, const Control& control) {
  OldList none;
  ListOf(interpreter, none).start = control.ParameterOr(1);
}

void SetUnmarked(Interpreter& interpreter, const Control&) {
  OldList none;
  ListOf(interpreter, none).isUnmarked = true;
}

// The item's mark as text, for readers that know nothing of lists.
void EnterListText(Interpreter& interpreter, const Control&) {
  const bool isInBody = interpreter.State().destination == Destination::kBody;
  if (!isInBody || !interpreter.IsShowing()) return interpreter.SkipGroup();
  interpreter.EnterDestination(Destination::kListText);
}

constexpr int ValueOf(Numbering numbering) { return static_cast<int>(numbering); }

constexpr ControlWord kWords[] = {
    {"listtable", EnterListTable},
    {"listoverridetable", EnterListTable},
    {"list", InListTable<&ListTables::BeginList>},
    {"listoverride", InListTable<&ListTables::BeginOverride>},
    {"listlevel", InListTable<&ListTables::BeginLevel>},
    {"lfolevel", InListTable<&ListTables::BeginOverriddenLevel>},
    {"levelnfc", SetNumbering},
    {"levelnfcn", SetNumbering},
    {"levelstartat", SetStart},
    {"listid", SetId},
    {"ls", SetOverride},
    {"ilvl", SetLevel},
    {"pn", EnterOldList},
    {"pnlvl", SetOldLevel},
    {"pnlvlblt", SetOldNumbering, ValueOf(Numbering::kBullet)},
    {"pnlvlbody", SetOldNumbering, ValueOf(Numbering::kDecimal)},
    {"pnlvlcont", SetUnmarked},
    {"pndec", SetOldNumbering, ValueOf(Numbering::kDecimal)},
    {"pnucrm", SetOldNumbering, ValueOf(Numbering::kUpperRoman)},
    {"pnlcrm", SetOldNumbering, ValueOf(Numbering::kLowerRoman)},
    {"pnucltr", SetOldNumbering, ValueOf(Numbering::kUpperLetter)},
    {"pnlcltr", SetOldNumbering, ValueOf(Numbering::kLowerLetter)},
    {"pnstart", SetOldStart},
    {"listtext", EnterListText},
    {"pntext", EnterListText},
};

}  // namespace

std::span<const ControlWord> ListWords() { return kWords; }

}  // namespace tagsmith::rtf
