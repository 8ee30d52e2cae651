// Tables (Rich Text Format 1.9.1, "Table Definitions" and "Nested Tables").

#include <algorithm>

#include "services/rtf/ControlWords.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

constexpr int kInnermostOuter = 2;
constexpr int kMostBorderTwips = 240;

RowBuilder& Row(Interpreter& interpreter) {
  return interpreter.body.Row(interpreter.State().isNestedRow);
}

void BeginRow(Interpreter& interpreter, const Control&) { Row(interpreter) = {}; }

void EndCellFormat(Interpreter& interpreter, const Control& control) {
  Row(interpreter).EndCellFormat(LimitedTwips(control.parameter));
}

void SetHeader(Interpreter& interpreter, const Control& control) {
  Row(interpreter).Format().isHeader = control.IsOn();
}

void SetLeftEdge(Interpreter& interpreter, const Control& control) {
  Row(interpreter).Format().leftEdge = LimitedTwips(control.parameter);
}

void SetRowAlignment(Interpreter& interpreter, const Control& control) {
  Row(interpreter).Format().alignment = static_cast<Alignment>(control.value);
}

void SetMergeAcross(Interpreter& interpreter, const Control& control) {
  Row(interpreter).Cell().across = static_cast<Merge>(control.value);
}

void SetMergeDown(Interpreter& interpreter, const Control& control) {
  Row(interpreter).Cell().down = static_cast<Merge>(control.value);
}

void SetCellAlignment(Interpreter& interpreter, const Control& control) {
  Row(interpreter).Cell().alignment = static_cast<VerticalAlignment>(control.value);
}

void SetCellBackground(Interpreter& interpreter, const Control& control) {
  Row(interpreter).Cell().background = interpreter.colours.At(control.parameter);
}

void SelectBorder(Interpreter& interpreter, const Control& control) {
  Row(interpreter).SelectBorder(static_cast<CellSide>(control.value));
}

void SelectRowBorder(Interpreter& interpreter, const Control& control) {
  Row(interpreter).SelectRowBorder(static_cast<RowSide>(control.value));
}

void SelectNoBorder(Interpreter& interpreter, const Control&) { Row(interpreter).SelectNoBorder(); }

void SetBorder(Interpreter& interpreter, const Control& control) {
  if (Border* const border = Row(interpreter).SelectedBorder())
    border->isThere = control.value != 0;
}

void SetBorderWidth(Interpreter& interpreter, const Control& control) {
  Border* const border = Row(interpreter).SelectedBorder();
  if (border != nullptr) border->width = std::clamp(control.parameter, 0, kMostBorderTwips);
}

void SetBorderColour(Interpreter& interpreter, const Control& control) {
  Border* const border = Row(interpreter).SelectedBorder();
  if (border != nullptr) border->colour = interpreter.colours.At(control.parameter);
}

void SetInTable(Interpreter& interpreter, const Control&) { interpreter.State().isInTable = true; }

void SetTableLevel(Interpreter& interpreter, const Control& control) {
  interpreter.State().tableLevel = std::clamp(control.parameter, 0, kDeepestTable);
}

void EndCell(Interpreter& interpreter, const Control&) { interpreter.EndCell(1); }
void EndRow(Interpreter& interpreter, const Control&) { interpreter.EndRow(1); }

int NestedLevel(Interpreter& interpreter) {
  return std::max(kInnermostOuter, interpreter.State().tableLevel);
}

void EndNestedCell(Interpreter& interpreter, const Control&) {
  interpreter.EndCell(NestedLevel(interpreter));
}

void EndNestedRow(Interpreter& interpreter, const Control&) {
  interpreter.EndRow(NestedLevel(interpreter));
}

void BeginNestedRowFormat(Interpreter& interpreter, const Control&) {
  interpreter.State().isNestedRow = true;
}

template <typename Enumeration>
constexpr int ValueOf(Enumeration value) {
  return static_cast<int>(value);
}

constexpr ControlWord kWords[] = {
    {"trowd", BeginRow},
    {"cellx", EndCellFormat},
    {"trhdr", SetHeader},
    {"trleft", SetLeftEdge},
    {"trql", SetRowAlignment, ValueOf(Alignment::kLeft)},
    {"trqc", SetRowAlignment, ValueOf(Alignment::kCentre)},
    {"trqr", SetRowAlignment, ValueOf(Alignment::kRight)},
    {"clmgf", SetMergeAcross, ValueOf(Merge::kFirst)},
    {"clmrg", SetMergeAcross, ValueOf(Merge::kContinued)},
    {"clvmgf", SetMergeDown, ValueOf(Merge::kFirst)},
    {"clvmrg", SetMergeDown, ValueOf(Merge::kContinued)},
    {"clvertalt", SetCellAlignment, ValueOf(VerticalAlignment::kTop)},
    {"clvertalc", SetCellAlignment, ValueOf(VerticalAlignment::kCentre)},
    {"clvertalb", SetCellAlignment, ValueOf(VerticalAlignment::kBottom)},
    {"clcbpat", SetCellBackground},
    {"clbrdrt", SelectBorder, ValueOf(CellSide::kTop)},
    {"clbrdrr", SelectBorder, ValueOf(CellSide::kRight)},
    {"clbrdrb", SelectBorder, ValueOf(CellSide::kBottom)},
    {"clbrdrl", SelectBorder, ValueOf(CellSide::kLeft)},
    {"trbrdrt", SelectRowBorder, ValueOf(RowSide::kTop)},
    {"trbrdrr", SelectRowBorder, ValueOf(RowSide::kRight)},
    {"trbrdrb", SelectRowBorder, ValueOf(RowSide::kBottom)},
    {"trbrdrl", SelectRowBorder, ValueOf(RowSide::kLeft)},
    {"trbrdrh", SelectRowBorder, ValueOf(RowSide::kBelow)},
    {"trbrdrv", SelectRowBorder, ValueOf(RowSide::kBetween)},
    // Borders of paragraphs, pages and texts, and lines across a cell.
    {"brdrt", SelectNoBorder},
    {"brdrr", SelectNoBorder},
    {"brdrb", SelectNoBorder},
    {"brdrl", SelectNoBorder},
    {"brdrbtw", SelectNoBorder},
    {"brdrbar", SelectNoBorder},
    {"box", SelectNoBorder},
    {"chbrdr", SelectNoBorder},
    {"pgbrdrt", SelectNoBorder},
    {"pgbrdrr", SelectNoBorder},
    {"pgbrdrb", SelectNoBorder},
    {"pgbrdrl", SelectNoBorder},
    {"cldglu", SelectNoBorder},
    {"cldgll", SelectNoBorder},
    {"brdrnone", SetBorder, 0},
    {"brdrnil", SetBorder, 0},
    {"brdrtbl", SetBorder, 0},
    {"brdrs", SetBorder, 1},
    {"brdrw", SetBorderWidth},
    {"brdrcf", SetBorderColour},
    {"intbl", SetInTable},
    {"itap", SetTableLevel},
    {"cell", EndCell},
    {"row", EndRow},
    {"nestcell", EndNestedCell},
    {"nestrow", EndNestedRow},
    {"nesttableprops", BeginNestedRowFormat},
};

}  // namespace

std::span<const ControlWord> TableWords() { return kWords; }

}  // namespace tagsmith::rtf
