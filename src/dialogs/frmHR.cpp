#include "dialogs/frmHR.h"

#include "core/Application.h"
#include "dialogs/Tags.h"

namespace tagsmith::dialogs {

frmHR::frmHR(Application& application) : ResultForm(application, "frmHR", "HR Line Dialog") {
  cmdChange.SetCaption("Change");
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  MyDialog.flags = kStartFromColor;
  SetDefaultButton(cmdInsert);
  SetArrangement(Column({
      Grid(2, {lblTitle(0), cboAlign, lblTitle(1), txtAttrib(0), lblTitle(2), txtAttrib(1),
               lblTitle(3), Row({shpColor, cmdChange}), lblTitle(4), txtID}),
      ButtonRow({cmdInsert, cmdCancel}),
  }));

  OnLoad([this] { FillcboAlign(); });
  cmdChange.onClick = [this] { PickColour(MyDialog, shpColor); };
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { Finish({}); };
  for (TextBox* field : {&txtAttrib(0), &txtAttrib(1), &txtID}) PressOnEnter(*field, cmdInsert);
}

void frmHR::FillcboAlign() { FillAlignments(cboAlign); }

void frmHR::cmdInsert_Click() {
  Finish(LineTag({.align = cboAlign.Text(),
                  .size = txtAttrib(0).Text(),
                  .width = txtAttrib(1).Text(),
                  .colour = shpColor.FillColor(),
                  .id = txtID.Text()}));
}

}  // namespace tagsmith::dialogs
