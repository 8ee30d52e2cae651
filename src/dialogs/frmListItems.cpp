#include "dialogs/frmListItems.h"

#include <string>

#include "core/Application.h"
#include "dialogs/DialogParts.h"

namespace tagsmith::dialogs {

frmListItems::frmListItems(Application& application) : Form(application.platform, "frmListItems") {
  SetCaption("How Many List Items?");
  SetBorder(BorderStyle::kToolWindow);
  cmdOK.SetCaption("OK");
  SetUpItemSlider(MySlider, lblItems);
  SetDefaultButton(cmdOK);
  SetArrangement(Column({Row({MySlider, lblItems}), ButtonRow({cmdOK})}));

  cmdOK.onClick = [this, &application] {
    application.gListItemCount = MySlider.Value();
    Unload();
  };
}

}  // namespace tagsmith::dialogs
