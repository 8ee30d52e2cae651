#include "integration/frmAbout.h"

#include <optional>
#include <string>

#include "core/Application.h"
#include "core/general1.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/Pictures.h"
#include "services/Registry.h"
#include "services/Shell.h"

namespace tagsmith::integration {
namespace {

constexpr const char* kVersion = "Version " TAGSMITH_VERSION;

constexpr const char* kDescription =
    "One edit pane, and around it toolbar pages, catalogs and dialogs that put markup and script "
    "into the text, and tools for whole sites. For people who write their pages by hand.";

constexpr const char* kStandsOn =
    "Tagsmith stands on these libraries:\n"
    "    Qt - GNU Lesser General Public License, version 3\n"
    "    QScintilla - GNU General Public License, version 3\n"
    "    Hunspell - GNU Lesser General Public License, version 2.1 or later";

constexpr const char* kDisclaimer =
    "Copyright \u00a9 2026 the Tagsmith authors. Tagsmith is free software: you may share and "
    "change it under the terms of the GNU General Public License, version 3 or any later version. "
    "It comes with absolutely no warranty, not even that it is fit for any particular purpose.";

}  // namespace

frmAbout::frmAbout(Application& application)
    : Form(application.platform, "frmAbout"), application_(application) {
  SetCaption("About Tagsmith");
  Label2(1).SetCaption(kVersion);
  lblDescription.SetCaption(kDescription);
  Label3.SetCaption(kStandsOn);
  lblDisclaimer.SetCaption(kDisclaimer);
  cmdOK.SetCaption("OK");
  cmdSysInfo.SetCaption("&System Info...");
  SetDefaultButton(cmdOK);
  SetInitialFocus(cmdOK);
  SetArrangement(Column({imgLogo, Row({Label2(0), Label2(1)}), Label1, lblDescription, Label3,
                         Line1, lblDisclaimer, ButtonRow({cmdSysInfo, cmdOK})}));
  onLoad = [this] { Form_Load(); };
  cmdOK.onClick = [this] { Unload(); };
  cmdSysInfo.onClick = [this] { StartSysInfo(); };
}

void frmAbout::Form_Load() {
  const std::string path = AddBackslash(application_.Path()) + "Tagsmith_Logo.gif";
  try {
    imgLogo.SetPicture(application_.platform.pictures.LoadPicture(path));
  } catch (const Error&) {  // The image stays empty.
  }
}

void frmAbout::StartSysInfo() {
  try {
    if (const auto tool = application_.platform.registry.SystemInformationTool()) {
      application_.platform.shell.Start(*tool);
      return;
    }
  } catch (const Error&) {  // As if there were none.
  }
  application_.MsgBox(*this, "System Information Is Unavailable At This Time", kOkOnly,
                      application_.Title());
}

}  // namespace tagsmith::integration
