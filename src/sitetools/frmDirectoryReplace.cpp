#include "sitetools/frmDirectoryReplace.h"

#include "core/Hourglass.h"
#include "services/Platform.h"
#include "sitetools/PaintPace.h"

namespace tagsmith::sitetools {
namespace {

constexpr int kTabKey = 9;
constexpr std::string_view kIdleStatus = "Press Start To Begin...";
constexpr Twips kViewPortWidth = 3600;
constexpr Twips kViewPortHeight = 1500;

}  // namespace

frmDirectoryReplace::frmDirectoryReplace(Application& application)
    : FileSelectionForm(application, "frmDirectoryReplace", "Directory Replace Dialog",
                        {.select = "STEP 2 - Select File(s) To Replace",
                         .leave = "STEP 5 - Click Cancel When Finished"}) {
  lblStatus.SetPlainCaption(true);
  lblStatus.SetCaption(kIdleStatus);
  txtEdit.SetWidth(kViewPortWidth);
  txtEdit.SetHeight(kViewPortHeight);
  SetArrangement(Arranged());
  Bind();
}

Arrangement frmDirectoryReplace::Arranged() {
  return Row({DirectoryStep(), SelectionStep(),
              Column({Label4, Grid(2, {Label6, txtFind, Label7, txtReplace}), Label5,
                      Row({cmdStart}), Row({Label8, lblStatus}), MyProgress, Label9, txtEdit,
                      Label10, ButtonRow({cmdCancel})})});
}

void frmDirectoryReplace::Bind() {
  cmdSelectAll.onClick = [this] { SelectFiles([](std::string_view) { return true; }); };
  cmdStart.onClick = [this] { cmdStart_Click(); };
  // There is nothing to write here, and the keyboard has to get past.
  txtEdit.onKeyPress = [this](int& keyAscii) {
    if (keyAscii != kTabKey) return;
    keyAscii = 0;
    cmdCancel.SetFocus();
  };
}

void frmDirectoryReplace::cmdStart_Click() {
  if (SelectedCount() == 0) {
    Inform("You Must Select At Least One File", kSorryTitle);
    return;
  }
  const TextSearch find(txtFind.Text());
  if (find.IsEmpty() && !txtReplace.Text().empty()) {  // It would be put in without end.
    Inform(txtFind.Text() + " Was Not Found", kSorryTitle);
    return;
  }
  lblStatus.SetCaption("Replacing...");
  DoReplace(find);
  Inform("Replace Completed", Caption());
  lblStatus.SetCaption(kIdleStatus);
  MyProgress.SetValue(0);
}

void frmDirectoryReplace::DoReplace(const TextSearch& find) {
  const Hourglass hourglass(*this);
  PaintPace pace(*this);
  const std::string directory = Directory();
  std::string text = txtEdit.Text();
  const auto paint = [&] { pace.Step([&] { ShowText(text); }); };
  ForEachSelected([&](const std::string& name) {
    lblStatus.SetCaption(name);
    Report(ReplaceInOneFile(GetPlatform().files, directory + name, find, txtReplace.Text(), text,
                            paint));
  });
  ShowText(text);
}

void frmDirectoryReplace::ShowText(const std::string& text) {
  txtEdit.SetText(text);
  txtEdit.EmptyUndoHistory();  // It would keep every text that was shown.
}

void frmDirectoryReplace::Report(FileOutcome outcome) {
  std::string_view prompt;
  if (outcome == FileOutcome::kTooLarge) prompt = "The File Is Too Large For Tagsmith";
  if (outcome == FileOutcome::kUnreadable) prompt = "Error Loading Text";
  if (prompt.empty()) return;
  SetMousePointer(kDefaultPointer);
  Inform(prompt, kSorryTitle);
}

}  // namespace tagsmith::sitetools
