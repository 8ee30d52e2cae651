#include "core/FileCommands.h"

#include <optional>
#include <string>
#include <utility>

#include "core/Application.h"
#include "core/Hourglass.h"
#include "core/RecentFiles.h"
#include "core/Sidebar.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/FileSystem.h"

namespace tagsmith {
namespace {

/// In bytes: a file of this size is refused.
constexpr std::size_t kFileSizeLimit = 1000000;

constexpr std::string_view kClosingPrompt = "Save Current File Before Closing?";
constexpr std::string_view kSorry = "Sorry...";
constexpr std::string_view kCannotWrite =
    "The file may be read-only, you may not have enough permissions, \r\n"
    "or the disk is full or write-protected";

}  // namespace

FileCommands::FileCommands(frmMain& form) : form_(form), application_(form.App()) { Bind(); }

void FileCommands::Bind() {
  form_.mnuFileNew.onClick = [this] { mnuFileNew_Click(); };
  form_.mnuFileOpen.onClick = [this] { mnuFileOpen_Click(); };
  form_.mnuFileClose.onClick = [this] { mnuFileClose_Click(); };
  form_.mnuFileSave.onClick = [this] { mnuFileSave_Click(); };
  form_.mnuFileSaveAs.onClick = [this] { mnuFileSaveAs_Click(); };
  form_.mnuSaveAsUnix.onClick = [this] { mnuSaveAsUnix_Click(); };
  form_.txtEdit.onGotFocus = [this] { txtEdit_GotFocus(); };

  const std::pair<CommandButton&, void (FileCommands::*)()> buttons[] = {
      {form_.cmdNew, &FileCommands::mnuFileNew_Click},
      {form_.cmdOpen, &FileCommands::mnuFileOpen_Click},
      {form_.cmdSave, &FileCommands::mnuFileSave_Click},
  };
  for (const auto& [button, command] : buttons) {
    button.onClick = [this, run = command] {
      (this->*run)();
      form_.txtEdit.SetFocus();
    };
  }
}

void FileCommands::Inform(std::string_view prompt, std::string_view title) {
  application_.MsgBox(form_, prompt, kInformationIcon, title);
}

bool FileCommands::LoadText(std::string_view path) {
  std::optional<std::string> bytes;
  try {
    const Hourglass hourglass(form_);
    bytes = application_.platform.files.ReadFile(path, kFileSizeLimit);
    if (bytes) {
      const DecodedText decoded = DecodeText(std::move(*bytes));
      form_.txtEdit.SetText(decoded.text);
      form_.txtEdit.EmptyUndoHistory();
      form_.SetDocumentEncoding(decoded.encoding);
    }
  } catch (const std::exception&) {
    Inform("Error Loading Text", kSorry);
    return false;
  }
  if (!bytes) Inform("The File Is Too Large For Tagsmith", kSorry);
  form_.MarkUnchanged();
  return bytes.has_value();
}

bool FileCommands::ConfirmLosingEdits(std::string_view prompt) {
  if (!form_.DocumentChanged()) return true;
  const int answer =
      application_.MsgBox(form_, prompt, kYesNoCancel + kQuestionIcon, "Save on Open...");
  if (answer == kYes) mnuFileSave_Click();
  return answer != kCancel;
}

void FileCommands::StartFromTemplate() {
  LoadText(AddBackslash(application_.Path()) + "Template.html");
  form_.SetDocumentName(kNewDocument);
}

void FileCommands::mnuFileNew_Click() {
  if (!ConfirmLosingEdits(kOpeningPrompt)) return;
  StartFromTemplate();
  form_.Lists().SyncFileBoxes(AddBackslash(application_.Path()));
}

void FileCommands::mnuFileOpen_Click() {
  if (!ConfirmLosingEdits(kOpeningPrompt)) return;
  try {
    Open();
  } catch (const std::exception&) {  // A cancelled dialog, too, ends the command without a word.
  }
}

void FileCommands::Open() {
  CommonDialog& dialog = form_.dlgCommonDialog;
  dialog.flags = 0;
  dialog.initDir = AddBackslash(form_.MyDirectory.Path());
  dialog.filter = application_.gFileFilter;
  if (!dialog.ShowOpen() || dialog.fileName.empty()) return;
  const std::string path = dialog.fileName;
  if (LoadText(Trim(path))) {
    form_.SetDocumentName(path);
    form_.Recent().AddToRecentlyUsed(path);
  } else {
    form_.Recent().AddToRecentMenu(path);
  }
  form_.Lists().SyncFileBoxes(path);
}

void FileCommands::Write(std::string_view path) {
  TextEncoding encoding = form_.DocumentEncoding();
  const std::string bytes = EncodeText(form_.txtEdit.Text() + "\r\n", encoding);
  application_.platform.files.WriteFile(path, bytes, Durability::kFlushed);
  form_.SetDocumentEncoding(encoding);
}

bool FileCommands::TryWrite(std::string_view path) {
  try {
    const Hourglass hourglass(form_);
    Write(path);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

void FileCommands::mnuFileSave_Click() {
  if (!form_.HasDocument()) {
    Inform("There Is No Document To Save", "Save Aborted...");
    return;
  }
  if (form_.DocumentName() == kNewDocument) {
    mnuFileSaveAs_Click();
    return;
  }
  if (TryWrite(form_.DocumentName())) {
    form_.MarkUnchanged();
    return;
  }
  Inform(kCannotWrite, kSorry);
  mnuFileSaveAs_Click();
}

void FileCommands::mnuFileSaveAs_Click() {
  try {
    SaveAs();
  } catch (
      const std::exception&) {  // A cancelled dialog and a file that cannot be written: not a word.
  }
}

void FileCommands::SaveAs() {
  CommonDialog& dialog = form_.dlgCommonDialog;
  dialog.initDir = AddBackslash(form_.MyDirectory.Path());
  dialog.filter = application_.gFileFilter;
  dialog.flags = 0;
  // Not the name chosen last time, which may be another page's.
  dialog.fileName = form_.HasDocument() ? form_.DocumentName() : std::string();
  if (!dialog.ShowSave() || dialog.fileName.empty()) return;
  const std::string path = dialog.fileName;
  const Hourglass hourglass(form_);
  Write(path);
  form_.MyFileList.Refresh();
  form_.Lists().ChangeToolTips();
  form_.SetDocumentName(path);
  form_.Recent().AddToRecentlyUsed(path);
  form_.ShowInCaption(Trim(path));
  form_.Lists().SyncFileBoxes(Trim(path));
  form_.MarkUnchanged();
}

void FileCommands::mnuSaveAsUnix_Click() {
  Inform("This feature is coming soon to a Tagsmith near you", "Save As Unix");
}

void FileCommands::mnuFileClose_Click() {
  if (!form_.HasDocument()) {
    form_.txtEdit.SetText("");
    form_.txtEdit.EmptyUndoHistory();
    form_.SetDocumentChanged(false);  // Where no document is, nothing is to be saved.
    return;
  }
  if (!ConfirmLosingEdits(kClosingPrompt)) return;
  form_.txtEdit.SetText("");
  form_.txtEdit.EmptyUndoHistory();
  form_.SetDocumentName(kNoDocument);
  form_.SetDocumentEncoding(TextEncoding::kUtf8);
  form_.SetDocumentChanged(false);
  // The next click into the pane is to start a new document.
  form_.ClearFocus();
}

void FileCommands::txtEdit_GotFocus() {
  if (!form_.HasDocument()) mnuFileNew_Click();
}

}  // namespace tagsmith
