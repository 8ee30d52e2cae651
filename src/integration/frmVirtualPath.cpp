#include "integration/frmVirtualPath.h"

#include "core/Application.h"
#include "core/SettingsKeys.h"

namespace tagsmith::integration {
namespace {

constexpr Twips kPathField = 5400;

}  // namespace

frmVirtualPath::frmVirtualPath(Application& application)
    : Form(application.platform, "frmVirtualPath"), application_(application) {
  SetCaption("Virtual Path Mapping");
  cmdOk.SetCaption("&Ok");
  txtPhysicalPath.SetWidth(kPathField);
  txtVirtualPath.SetWidth(kPathField);
  SetDefaultButton(cmdOk);
  SetArrangement(Column({Grid(2, {Label1(0), txtPhysicalPath, Label1(1), txtVirtualPath}),
                         chkUseVPath, ButtonRow({cmdOk})}));

  onLoad = [this] { Form_Load(); };
  onUnload = [this](bool& /*cancel*/) { Form_Unload(); };
  cmdOk.onClick = [this] { Unload(); };
}

void frmVirtualPath::Form_Load() {
  txtPhysicalPath.SetText(application_.GetSetting(settings::kPhysicalPath));
  txtVirtualPath.SetText(application_.GetSetting(settings::kVirtualPath));
  const bool isUsed = application_.GetSetting(settings::kUseVirtualPath) == settings::kYes;
  chkUseVPath.SetValue(isUsed ? 1 : 0);
}

void frmVirtualPath::Form_Unload() {
  application_.SaveSetting(settings::kPhysicalPath, txtPhysicalPath.Text());
  application_.SaveSetting(settings::kVirtualPath, txtVirtualPath.Text());
  application_.SaveSetting(settings::kUseVirtualPath,
                           chkUseVPath.Value() == 1 ? settings::kYes : settings::kNo);
}

}  // namespace tagsmith::integration
