#pragma once

#include "dialogs/DialogParts.h"
#include "dialogs/TableBlock.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/MSFlexGrid.h"

namespace tagsmith::dialogs {

/// Makes a whole table. The texts of the cells are kept beside the grid, which shows a text once
/// its cell is selected or saved.
class frmTables : public ResultForm {
 public:
  explicit frmTables(Application& application);

  Label lblCoord{*this, "lblCoord", ""};
  Slider sldCols{*this, "sldCols", Orientation::kHorizontal, 1, kMostTableColumns};
  Slider sldRows{*this, "sldRows", Orientation::kVertical, 1, kMostTableRows};
  MSFlexGrid MyTable{*this, "MyTable", 1, 1};
  Label Label1{*this, "Label1", "Cell Text"};
  TextBox txtCellText{*this, "txtCellText"};
  CommandButton cmdSave{*this, "cmdSave"};
  Frame fraAll{*this, "fraAll", "Properties for Entire Table"};
  ControlArray<Label> lblCaption{
      *this, "lblCaption", {"Caption", "Width", "Border Width", "Cell Spacing", "Cell Padding"}};
  TextBox txtCaption{*this, "txtCaption"};
  TextBox txtWidth{*this, "txtWidth"};
  TextBox txtBorderWidth{*this, "txtBorderWidth"};
  TextBox txtCellSpacing{*this, "txtCellSpacing"};
  TextBox txtCellPadding{*this, "txtCellPadding"};
  Label lblAlign{*this, "lblTitle", "Align", 0};
  ComboBox cboAlign{*this, "cboAlign", ComboStyle::kDropDownCombo, /*sorted=*/true};
  Label lblVAlign{*this, "lblTitle", "VAlign", 1};
  ComboBox cboVAlign{*this, "cboVAlign", ComboStyle::kDropDownCombo, /*sorted=*/false};
  Label lblBackground{*this, "lblTitle", "Background Color", 3};
  Shape shpColor{*this, "shpColor"};
  CommandButton cmdChange{*this, "cmdChange"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};
  CommonDialog MyDialog{*this};

 private:
  void Arrange();
  void Form_Load();
  void FillCombos();
  void EraseArray();
  void MyTable_SelChange();
  void cmdSave_Click();
  void cmdInsert_Click();

  CellTexts cells_;
};

}  // namespace tagsmith::dialogs
