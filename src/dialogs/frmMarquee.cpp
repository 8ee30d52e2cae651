#include "dialogs/frmMarquee.h"

#include "core/Application.h"
#include "dialogs/Tags.h"

namespace tagsmith::dialogs {

frmMarquee::frmMarquee(Application& application)
    : ResultForm(application, "frmMarquee", "Marquee Dialog") {
  cmdChange.SetCaption("Change");
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  MyDialog.flags = kStartFromColor;
  SetDefaultButton(cmdInsert);
  Arrange();

  OnLoad([this] { Form_Load(); });
  cmdChange.onClick = [this] { PickColour(MyDialog, shpColor); };
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { Finish({}); };
  for (int i = 0; i < txtAttib.Count(); ++i) PressOnEnter(txtAttib(i), cmdInsert);
  PressOnEnter(txtID, cmdInsert);
}

void frmMarquee::Arrange() {
  for (int i = 1; i < txtAttib.Count(); ++i) txtAttib(i).SetWidth(kNarrowField);
  SetArrangement(Column({
      Labelled(lblTitle(0), txtAttib(0)),
      Grid(4, {lblTitle(1), txtAttib(1),  lblTitle(2),  txtAttib(2),  //
               lblTitle(3), txtAttib(3),  lblTitle(4),  txtAttib(4),  //
               lblTitle(5), txtAttib(5),  lblTitle(6),  txtAttib(6),  //
               lblTitle(7), cboAlign,     lblTitle(8),  cboBehavior,  //
               lblTitle(9), cboDirection, lblTitle(10), txtAttib(7)}),
      Grid(2, {lblTitle(11), Row({shpColor, cmdChange}), lblTitle(12), txtID}),
      ButtonRow({cmdInsert, cmdCancel}),
  }));
}

void frmMarquee::Form_Load() {
  FillcboAlign();
  if (!App().gSelectedText.empty()) txtAttib(0).SetText(App().gSelectedText);
}

void frmMarquee::FillcboAlign() {
  FillAlignments(cboAlign);
  cboBehavior.AddItems({"Scroll", "Slide", "Alternate"});
  cboBehavior.SetListIndex(0);
  cboDirection.AddItems({"Right", "Left"});
  cboDirection.SetListIndex(0);
}

void frmMarquee::cmdInsert_Click() {
  Finish(MarqueeTag({.height = txtAttib(1).Text(),
                     .width = txtAttib(2).Text(),
                     .hSpace = txtAttib(3).Text(),
                     .vSpace = txtAttib(4).Text(),
                     .scrollAmount = txtAttib(5).Text(),
                     .scrollDelay = txtAttib(6).Text(),
                     .align = cboAlign.Text(),
                     .behavior = cboBehavior.Text(),
                     .direction = cboDirection.Text(),
                     .loop = txtAttib(7).Text(),
                     .background = shpColor.FillColor(),
                     .id = txtID.Text(),
                     .text = txtAttib(0).Text()}));
}

}  // namespace tagsmith::dialogs
