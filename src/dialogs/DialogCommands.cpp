#include "dialogs/DialogCommands.h"

#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/frmMain.h"
#include "dialogs/frmAnchor.h"
#include "dialogs/frmColors.h"
#include "dialogs/frmComment.h"
#include "dialogs/frmFrameDialog.h"
#include "dialogs/frmHR.h"
#include "dialogs/frmImage.h"
#include "dialogs/frmJumpStart.h"
#include "dialogs/frmMarquee.h"
#include "dialogs/frmTables.h"
#include "services/Dialogs.h"

namespace tagsmith::dialogs {
namespace {

// What the modal dialog `T` hands back; empty for nothing.
template <class T>
const std::string& ResultOf(Application& application) {
  application.Instance<T>().Show(Modality::kModal);
  return application.gResultText;
}

void ReplaceSelection(Application& application, std::string_view text) {
  if (!text.empty()) application.MainForm().InsertText(text);
}

void EncloseSelection(Application& application, std::string_view open, std::string_view close) {
  if (!open.empty()) application.MainForm().InsertAround(open, close);
}

// For a dialog that starts from the selection.
template <class T>
void ReplaceByDialog(Application& application) {
  application.gSelectedText = application.MainForm().txtEdit.SelText();
  ReplaceSelection(application, ResultOf<T>(application));
}

// Asks whether edits are to be saved; No goes on without. False if they were to be saved and are
// not: the user has changed his mind in the file dialog, or the file could not be written.
bool OfferToSave(Application& application, std::string_view question) {
  frmMain& form = application.MainForm();
  if (!form.DocumentChanged()) return true;
  const int answer = application.MsgBox(form, question, kYesNo + kQuestionIcon, "Save on Open...");
  if (answer != kYes) return true;
  form.mnuFileSave_Click();
  return !form.DocumentChanged();
}

// For a dialog that makes a whole page.
template <class T>
void StartPageByDialog(Application& application, std::string_view question) {
  if (!OfferToSave(application, question)) return;
  const std::string& page = ResultOf<T>(application);
  if (!page.empty()) application.MainForm().ReplaceDocument(page);
}

void cmdFastColor_Click(Application& application) {
  application.Instance<frmColors>().Show(Modality::kModal);
  if (application.gColorValue != kNoColour) {
    application.MainForm().InsertText(application.gColorValue);
  }
}

struct DialogCommand {
  std::string_view control;
  void (*run)(Application&);
};

constexpr DialogCommand kCommands[] = {
    {"cmdFastColor", cmdFastColor_Click},
    {"cmdFastAnchor", ReplaceByDialog<frmAnchor>},
    {"cmdComment", ReplaceByDialog<frmComment>},
    {"cmdMarquee", ReplaceByDialog<frmMarquee>},
    {"cmdFastTable", [](Application& app) { ReplaceSelection(app, ResultOf<frmTables>(app)); }},
    {"cmdFastImage",
     [](Application& app) { EncloseSelection(app, ResultOf<frmImage>(app), "</IMG>"); }},
    {"cmdFastLine", [](Application& app) { EncloseSelection(app, ResultOf<frmHR>(app), ""); }},
    {"cmdFrameDialog",
     [](Application& app) {
       StartPageByDialog<frmFrameDialog>(app, "Save Current Before Opening Another File?");
     }},
    {"cmdEasyBegin",
     [](Application& app) {
       StartPageByDialog<frmJumpStart>(app, "Save Current File Before Opening Another?");
     }},
};

}  // namespace

void BindDialogCommands(Application& application) {
  const frmMain& form = application.MainForm();
  for (const DialogCommand& command : kCommands) {
    form.Get<CommandButton>(command.control).onClick = [&application, run = command.run] {
      run(application);
    };
  }
}

}  // namespace tagsmith::dialogs
