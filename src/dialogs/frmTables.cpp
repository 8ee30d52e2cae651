#include "dialogs/frmTables.h"

#include <string>

#include "core/Application.h"

namespace tagsmith::dialogs {
namespace {

constexpr Colour kBlue = 0xFF0000;
/// Holds "(20, 20)".
constexpr Twips kCoordWidth = 720;
constexpr Twips kCellTextWidth = 3600;

}  // namespace

frmTables::frmTables(Application& application)
    : ResultForm(application, "frmTables", "Table Dialog") {
  cmdSave.SetCaption("Save Text");
  cmdChange.SetCaption("Change");
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  lblCoord.SetForeColor(kBlue);
  txtCellText.SetMultiLine(true);
  SetInitialFocus(txtCellText);
  Arrange();

  OnLoad([this] { Form_Load(); });
  sldCols.onChange = [this] { MyTable.SetCols(sldCols.Value()); };
  sldRows.onChange = [this] { MyTable.SetRows(sldRows.Value()); };
  MyTable.onSelChange = [this] { MyTable_SelChange(); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  cmdChange.onClick = [this] { PickColour(MyDialog, shpColor); };
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { Finish({}); };
}

void frmTables::Arrange() {
  lblCoord.SetWidth(kCoordWidth);
  txtCellText.SetWidth(kCellTextWidth);
  for (TextBox* field :
       {&txtCaption, &txtWidth, &txtBorderWidth, &txtCellSpacing, &txtCellPadding}) {
    field->SetWidth(kNarrowField);
  }
  const Arrangement properties =
      Grid(2, {lblCaption(0), txtCaption, lblCaption(1), txtWidth, lblCaption(2), txtBorderWidth,
               lblCaption(3), txtCellSpacing, lblCaption(4), txtCellPadding, lblAlign, cboAlign,
               lblVAlign, cboVAlign, lblBackground, Row({shpColor, cmdChange})});
  SetArrangement(Column({
      Row({Column({Grid(2, {lblCoord, sldCols, sldRows, MyTable}), Labelled(Label1, txtCellText),
                   Row({cmdSave})}),
           Group(fraAll, properties)}),
      ButtonRow({cmdInsert, cmdCancel}),
  }));
}

void frmTables::Form_Load() {
  FillCombos();
  EraseArray();
}

void frmTables::FillCombos() {
  FillAlignments(cboAlign);
  cboVAlign.AddItems({"Top", "Bottom", "Center"});
  cboVAlign.SetListIndex(0);
}

void frmTables::EraseArray() { cells_.Erase(); }

void frmTables::MyTable_SelChange() {
  const int row = MyTable.Row();
  const int column = MyTable.Col();
  lblCoord.SetCaption("(" + std::to_string(row + 1) + ", " + std::to_string(column + 1) + ")");
  txtCellText.SetText(cells_.At(row, column));
  MyTable.SetText(cells_.At(row, column));
}

void frmTables::cmdSave_Click() {
  cells_.Set(MyTable.Row(), MyTable.Col(), txtCellText.Text());
  MyTable.SetText(txtCellText.Text());
}

void frmTables::cmdInsert_Click() {
  const TableFields fields = {.width = txtWidth.Text(),
                              .borderWidth = txtBorderWidth.Text(),
                              .cellSpacing = txtCellSpacing.Text(),
                              .cellPadding = txtCellPadding.Text(),
                              .align = cboAlign.Text(),
                              .vAlign = cboVAlign.Text(),
                              .background = shpColor.FillColor(),
                              .caption = txtCaption.Text(),
                              .rows = MyTable.Rows(),
                              .columns = MyTable.Cols()};
  Finish(TableBlock(fields, cells_));
}

}  // namespace tagsmith::dialogs
