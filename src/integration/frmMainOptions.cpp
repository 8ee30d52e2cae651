#include "integration/frmMainOptions.h"

#include "core/Application.h"
#include "core/SettingsKeys.h"
#include "integration/Module1.h"

namespace tagsmith::integration {
namespace {

// The instructions stand in four lines or so.
constexpr Twips kInstructWidth = 4200;

void ReadFlag(const Application& application, const Setting& setting, CheckBox& box, bool& flag) {
  flag = application.GetSetting(setting) == settings::kTrue;
  box.SetValue(flag ? 1 : 0);
}

void SaveFlag(Application& application, const Setting& setting, const CheckBox& box, bool& flag) {
  flag = box.Value() == 1;
  application.SaveSetting(setting, flag ? settings::kTrue : settings::kFalse);
}

}  // namespace

frmMainOptions::frmMainOptions(Application& application)
    : Form(application.platform, "frmMainOptions"), application_(application) {
  SetCaption("Tagsmith Options");
  txtCommentSymbol.SetText("//");
  lblInstruct.SetWidth(kInstructWidth);
  cmdRegister.SetPictureName("cmdRegister");
  cmdRegister.SetToolTipText("Register Tagsmith with HTML files");
  cmdOK.SetCaption("OK");
  SetDefaultButton(cmdOK);
  SetArrangement(Column({
      Group(fraMisc, Row({Label1, txtCommentSymbol})),
      Group(fraRegister, Row({lblInstruct, cmdRegister})),
      Group(fraTagOptions, Column({chkID, chkHeightWidth})),
      ButtonRow({cmdOK}),
  }));

  onLoad = [this] { Form_Load(); };
  cmdRegister.onClick = [this] { RegisterWithShell(application_, *this); };
  cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmMainOptions::Form_Load() {
  txtCommentSymbol.SetText(application_.gBlockCommentSymbol);
  ReadFlag(application_, settings::kIdAttribute, chkID, application_.gIncludeIdAttribute);
  ReadFlag(application_, settings::kHeightWidth, chkHeightWidth, application_.gIncludeHeightWidth);
}

void frmMainOptions::cmdOK_Click() {
  SaveFlag(application_, settings::kIdAttribute, chkID, application_.gIncludeIdAttribute);
  SaveFlag(application_, settings::kHeightWidth, chkHeightWidth, application_.gIncludeHeightWidth);
  application_.SaveSetting(settings::kBlockComment, txtCommentSymbol.Text());
  application_.gBlockCommentSymbol = txtCommentSymbol.Text();
  Unload();
}

}  // namespace tagsmith::integration
