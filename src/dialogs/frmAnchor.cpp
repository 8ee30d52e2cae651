#include "dialogs/frmAnchor.h"

#include "core/Application.h"
#include "dialogs/Tags.h"

namespace tagsmith::dialogs {

frmAnchor::frmAnchor(Application& application)
    : ResultForm(application, "frmAnchor", "Anchors Dialog") {
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  SetDefaultButton(cmdInsert);
  txtURL.SetWidth(kWideField);
  SetArrangement(Column({
      Labelled(lblInstruct(0), txtURL),
      Labelled(lblInstruct(1), txtALT),
      Labelled(lblInstruct(2), txtTarget),
      Labelled(lblInstruct(3), txtName),
      Labelled(lblInstruct(4), txtID),
      ButtonRow({cmdInsert, cmdCancel}),
  }));

  OnLoad([this] { Form_Load(); });
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { Finish({}); };
  for (TextBox* field : {&txtURL, &txtALT, &txtTarget, &txtName, &txtID}) {
    PressOnEnter(*field, cmdInsert);
  }
}

void frmAnchor::Form_Load() {
  if (!App().gSelectedText.empty()) txtALT.SetText(App().gSelectedText);
}

void frmAnchor::cmdInsert_Click() {
  Finish(AnchorTag({.url = txtURL.Text(),
                    .target = txtTarget.Text(),
                    .name = txtName.Text(),
                    .id = txtID.Text(),
                    .text = txtALT.Text()}));
}

}  // namespace tagsmith::dialogs
