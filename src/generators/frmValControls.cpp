#include "generators/frmValControls.h"

#include <string_view>

#include "core/Application.h"
#include "core/frmMain.h"

namespace tagsmith::generators {
namespace {

void Validate(Application& application, OptionButton frmValControls::*language) {
  auto& dialog = application.Instance<frmValControls>();
  (dialog.*language).SetValue(true);
  dialog.Show(Modality::kModal);
  if (application.gResultText.empty()) return;
  application.MainForm().InsertText(application.gResultText);
}

}  // namespace

frmValControls::frmValControls(Application& application)
    : Form(application.platform, "frmValControls"), application_(application) {
  SetCaption("Validate Form Controls Dialog");
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  txtMessage.SetMultiLine(true);
  SetDefaultButton(cmdInsert);
  Arrange();

  onLoad = [this] { Form_Load(); };
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { Finish({}); };
}

void frmValControls::Arrange() {
  SetArrangement(Column({
      Grid(2,
           {
               Group(fraControlName, txtControlName),
               Group(fraControl, cboControl),
               Group(fraComparison, Grid(2, {optEqualTo, optNotEqualTo, optGreaterThan, optLessThan,
                                             optGTE, optLTE})),
               Column({Group(fraValue, txtValue),
                       Group(fraScript, Row({optJavaScript, optVBScript}))}),
           }),
      Group(fraMessage, txtMessage),
      ButtonRow({cmdInsert, cmdCancel}),
  }));
}

void frmValControls::Form_Load() {
  application_.gResultText.clear();
  FillcboControl();
  optEqualTo.SetValue(true);
}

void frmValControls::FillcboControl() {
  for (const std::string_view type : {"TextBox", "TextArea", "Password"}) cboControl.AddItem(type);
  cboControl.SetListIndex(0);
}

Comparison frmValControls::ChosenComparison() const {
  if (optNotEqualTo.Value()) return Comparison::kNotEqualTo;
  if (optGreaterThan.Value()) return Comparison::kGreaterThan;
  if (optLessThan.Value()) return Comparison::kLessThan;
  if (optGTE.Value()) return Comparison::kGreaterOrEqual;
  if (optLTE.Value()) return Comparison::kLessOrEqual;
  return Comparison::kEqualTo;
}

void frmValControls::cmdInsert_Click() {
  const ValueCheck check{txtControlName.Text(), ChosenComparison(), txtValue.Text(),
                         txtMessage.Text()};
  Finish(CheckStatement(
      check, optVBScript.Value() ? ScriptLanguage::kVbScript : ScriptLanguage::kJavaScript));
}

void frmValControls::Finish(const std::string& resultText) {
  application_.gResultText = resultText;
  Unload();
}

void BindValidationCommands(Application& application) {
  const auto bind = [&application](std::string_view button,
                                   OptionButton frmValControls::*language) {
    application.MainForm().Get<CommandButton>(button).onClick = [&application, language] {
      Validate(application, language);
    };
  };
  bind("cmdJSFormVal", &frmValControls::optJavaScript);
  bind("cmdVBFormVal", &frmValControls::optVBScript);
}

}  // namespace tagsmith::generators
