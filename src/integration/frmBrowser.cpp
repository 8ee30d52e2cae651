#include "integration/frmBrowser.h"

#include "core/Application.h"
#include "core/general1.h"
#include "integration/BrowserCommands.h"

namespace tagsmith::integration {

frmBrowser::frmBrowser(Application& application)
    : Form(application.platform, "frmBrowser"), application_(application) {
  SetCaption("External Browser");
  cmdIE.SetCaption("Browser 1");
  cmdIE.SetToolTipText("MS Internet Explorer");
  cmdNetscape.SetCaption("Browser 2");
  cmdNetscape.SetToolTipText("Netscape Navigator");
  cmdExit.SetCaption("OK");
  SetArrangement(Column({Label1, ButtonRow({cmdIE, cmdNetscape, cmdExit})}));

  cmdIE.onClick = [this] { View(application_.gBrowser1Path); };
  cmdNetscape.onClick = [this] { View(application_.gBrowser2Path); };
  cmdExit.onClick = [this] { Unload(); };
}

// Without a browser that could be tried the form stays, for the other button.
void frmBrowser::View(const std::string& browserPath) {
  if (!HasBrowser(application_, *this, browserPath)) return;
  const std::string_view file = Trim(Tag());
  if (FileExists(application_, file)) {
    StartBrowser(application_, browserPath, file);
  } else {
    ReportMissingFile(application_, *this, Tag());
  }
  Unload();
}

}  // namespace tagsmith::integration
