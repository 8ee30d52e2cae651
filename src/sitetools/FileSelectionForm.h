#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "services/Buttons.h"
#include "services/FileBoxes.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Ranges.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::sitetools {

/// What the dialogs have in common that work through files which the user selects in a directory.
/// They open where the main form's lists stand. A run does not yield: Cancel waits for its end.
class FileSelectionForm : public Form {
 public:
  Label Label1{*this, "Label1", "STEP 1 - Choose The Drive and Directory"};
  DriveListBox MyDrive{*this, "MyDrive"};
  DirListBox MyDirectory{*this, "MyDirectory"};
  Label Label2;
  FileListBox MyFileList{*this, "MyFileList", /*multiSelect=*/true};
  CommandButton cmdSelectAll{*this, "cmdSelectAll"};
  CommandButton cmdSelectNone{*this, "cmdSelectNone"};
  CommandButton cmdStart{*this, "cmdStart"};
  Label Label8{*this, "Label8", "Status"};
  ProgressBar MyProgress{*this, "MyProgress"};
  Label Label10;
  CommandButton cmdCancel{*this, "cmdCancel"};

 protected:
  /// What the steps are called in which the files are selected and the dialog is left.
  struct StepNames {
    std::string select;
    std::string leave;
  };

  FileSelectionForm(Application& application, std::string name, std::string_view caption,
                    StepNames steps);

  /// How the first two steps stand: the lists, and the buttons below the files.
  Arrangement DirectoryStep();
  Arrangement SelectionStep();

  /// Selects the files whose name `isWanted`, and leaves the others as they are.
  void SelectFiles(const std::function<bool(std::string_view name)>& isWanted);
  int SelectedCount() const;
  /// Calls `work` with the name of each selected file, in the order of the list. The bar goes on by
  /// one step behind each.
  void ForEachSelected(const std::function<void(const std::string& name)>& work);
  /// The directory of the files, with a backslash behind it.
  std::string Directory() const;

  void Inform(std::string_view prompt, std::string_view title);

 private:
  void Bind();

  Application& application_;
};

/// The title of what keeps a run from beginning, or a file from being read.
inline constexpr std::string_view kSorryTitle = "Sorry...";

}  // namespace tagsmith::sitetools
