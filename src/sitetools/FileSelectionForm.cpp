#include "sitetools/FileSelectionForm.h"

#include <utility>

#include "core/Application.h"
#include "core/FileLists.h"
#include "core/general1.h"
#include "services/Dialogs.h"

namespace tagsmith::sitetools {

FileSelectionForm::FileSelectionForm(Application& application, std::string name,
                                     std::string_view caption, StepNames steps)
    : Form(application.platform, std::move(name)),
      Label2(*this, "Label2", std::move(steps.select)),
      Label10(*this, "Label10", std::move(steps.leave)),
      application_(application) {
  SetCaption(caption);
  cmdSelectAll.SetCaption("Select &All");
  cmdSelectNone.SetCaption("Select &None");
  cmdStart.SetCaption("&Start");
  cmdCancel.SetCaption("&Cancel");
  Bind();
}

void FileSelectionForm::Bind() {
  const FileLists lists{*this, MyDrive, MyDirectory, &MyFileList};
  onLoad = [this, lists] { OpenAtMainForm(application_, lists); };
  ChainFileLists(application_, lists);
  cmdSelectNone.onClick = [this] {
    for (int i = 0; i < MyFileList.ListCount(); ++i) MyFileList.SetSelected(i, false);
  };
  cmdCancel.onClick = [this] { Unload(); };
}

Arrangement FileSelectionForm::DirectoryStep() { return Column({Label1, MyDrive, MyDirectory}); }

Arrangement FileSelectionForm::SelectionStep() {
  return Column({Label2, MyFileList, ButtonRow({cmdSelectAll, cmdSelectNone})});
}

void FileSelectionForm::SelectFiles(const std::function<bool(std::string_view name)>& isWanted) {
  for (int i = 0; i < MyFileList.ListCount(); ++i) {
    if (isWanted(MyFileList.List(i))) MyFileList.SetSelected(i, true);
  }
}

int FileSelectionForm::SelectedCount() const {
  int count = 0;
  for (int i = 0; i < MyFileList.ListCount(); ++i) {
    if (MyFileList.Selected(i)) ++count;
  }
  return count;
}

void FileSelectionForm::ForEachSelected(const std::function<void(const std::string& name)>& work) {
  MyProgress.SetValue(0);
  MyProgress.SetMax(SelectedCount());
  for (int i = 0; i < MyFileList.ListCount(); ++i) {
    if (!MyFileList.Selected(i)) continue;
    work(MyFileList.List(i));
    MyProgress.SetValue(MyProgress.Value() + 1);
  }
}

std::string FileSelectionForm::Directory() const { return AddBackslash(MyDirectory.Path()); }

void FileSelectionForm::Inform(std::string_view prompt, std::string_view title) {
  application_.MsgBox(*this, prompt, kInformationIcon, title);
}

}  // namespace tagsmith::sitetools
