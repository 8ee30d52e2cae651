#include "dialogs/frmComment.h"

#include "core/Application.h"
#include "dialogs/Tags.h"

namespace tagsmith::dialogs {

frmComment::frmComment(Application& application)
    : ResultForm(application, "frmComment", "Comment Dialog") {
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  txtComments.SetMultiLine(true);
  SetDefaultButton(cmdInsert);
  SetArrangement(Column({Labelled(lblComments, txtComments), ButtonRow({cmdInsert, cmdCancel})}));

  OnLoad([this] { Form_Load(); });
  cmdInsert.onClick = [this] { Finish(CommentTag(txtComments.Text())); };
  cmdCancel.onClick = [this] { Finish({}); };
  PressOnEnter(txtComments, cmdInsert);
}

void frmComment::Form_Load() {
  if (!App().gSelectedText.empty()) txtComments.SetText(App().gSelectedText);
}

}  // namespace tagsmith::dialogs
