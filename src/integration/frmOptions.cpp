#include "integration/frmOptions.h"

#include "core/Application.h"
#include "core/SettingsKeys.h"
#include "core/general1.h"
#include "services/Error.h"

namespace tagsmith::integration {
namespace {

constexpr Twips kPathField = 5400;

}  // namespace

frmOptions::frmOptions(Application& application)
    : Form(application.platform, "frmOptions"), application_(application) {
  SetCaption("Define External Browsers");
  txtIE.SetWidth(kPathField);
  txtNN.SetWidth(kPathField);
  for (int i = 0; i < cmdIE.Count(); ++i) cmdIE(i).SetCaption("...");
  cmdDone.SetCaption("Done");
  SetDefaultButton(cmdDone);
  SetArrangement(Column(
      {Grid(3, {Label1(0), txtIE, cmdIE(0), Label1(1), txtNN, cmdIE(1)}), ButtonRow({cmdDone})}));

  onLoad = [this] { Form_Load(); };
  cmdIE.Bind(&CommandButton::onClick, [this](int index) { cmdIE_Click(index); });
  cmdDone.onClick = [this] { cmdDone_Click(); };
}

void frmOptions::Form_Load() {
  txtIE.SetText(Trim(application_.gBrowser1Path));
  txtNN.SetText(Trim(application_.gBrowser2Path));
}

void frmOptions::cmdIE_Click(int Index) {
  TextBox& field = Index == 0 ? txtIE : txtNN;
  MyDialog.filter = "Exe Files|*.exe";
  // From the browser that the field names, or else from the one that was chosen last.
  const std::string_view path = Trim(field.Text());
  if (FileExists(application_, path)) MyDialog.fileName = path;
  try {
    if (MyDialog.ShowOpen() && !MyDialog.fileName.empty()) field.SetText(MyDialog.fileName);
  } catch (const Error&) {  // The field stays as it is.
  }
}

void frmOptions::cmdDone_Click() {
  Keep(txtIE, settings::kBrowser1, application_.gBrowser1Path);
  Keep(txtNN, settings::kBrowser2, application_.gBrowser2Path);
  Unload();
}

void frmOptions::Keep(const TextBox& field, const Setting& setting, std::string& browserPath) {
  const std::string_view path = Trim(field.Text());
  if (!FileExists(application_, path)) return;
  application_.SaveSetting(setting, path);
  browserPath = path;
}

}  // namespace tagsmith::integration
