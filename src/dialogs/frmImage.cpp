#include "dialogs/frmImage.h"

#include "core/Application.h"
#include "dialogs/Tags.h"

namespace tagsmith::dialogs {

frmImage::frmImage(Application& application) : ResultForm(application, "frmImage", "Image Dialog") {
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  SetDefaultButton(cmdInsert);
  Arrange();

  OnLoad([this] { FillcboAlign(); });
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { Finish({}); };
  for (int i = 0; i < txtAttib.Count(); ++i) PressOnEnter(txtAttib(i), cmdInsert);
  PressOnEnter(txtID, cmdInsert);
}

void frmImage::Arrange() {
  SetArrangement(Column({
      Labelled(lblTitle(0), txtAttib(0)),
      Labelled(lblTitle(1), txtAttib(1)),
      Grid(2, {Labelled(lblTitle(2), txtAttib(2)), Labelled(lblTitle(3), txtAttib(3)),
               Labelled(lblTitle(4), txtAttib(4)), Labelled(lblTitle(5), txtAttib(5)),
               Labelled(lblTitle(6), txtAttib(6)), Labelled(lblTitle(7), cboAlign),
               Labelled(lblTitle(8), txtAttib(7)), Labelled(lblTitle(9), txtAttib(8))}),
      Labelled(lblTitle(10), txtID),
      ButtonRow({cmdInsert, cmdCancel}),
  }));
}

void frmImage::FillcboAlign() {
  cboAlign.AddItems(
      {"Top", "Bottom", "Middle", "ABSMiddle", "ABSTop", "ABSBottom", "Left", "Right"});
  cboAlign.SetListIndex(0);
}

void frmImage::cmdInsert_Click() {
  Finish(ImageTag({.url = txtAttib(0).Text(),
                   .alt = txtAttib(1).Text(),
                   .height = txtAttib(2).Text(),
                   .width = txtAttib(3).Text(),
                   .hSpace = txtAttib(4).Text(),
                   .vSpace = txtAttib(5).Text(),
                   .border = txtAttib(6).Text(),
                   .dynSrc = txtAttib(7).Text(),
                   .loop = txtAttib(8).Text(),
                   .align = cboAlign.Text(),
                   .id = txtID.Text()}));
}

}  // namespace tagsmith::dialogs
