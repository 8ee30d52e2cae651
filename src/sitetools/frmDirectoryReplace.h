#pragma once

#include "services/RichTextBox.h"
#include "services/TextBox.h"
#include "sitetools/DirectoryReplace.h"
#include "sitetools/FileSelectionForm.h"

namespace tagsmith::sitetools {

/// One find-and-replace over any number of files of a directory, straight on disk.
class frmDirectoryReplace : public FileSelectionForm {
 public:
  explicit frmDirectoryReplace(Application& application);

  Label Label4{*this, "Label4", "STEP 3 - Enter Text To Find and Replace"};
  Label Label6{*this, "Label6", "Find"};
  TextBox txtFind{*this, "txtFind"};
  Label Label7{*this, "Label7", "Replace"};
  TextBox txtReplace{*this, "txtReplace"};
  Label Label5{*this, "Label5", "STEP 4 - Click Start To Perform The Replace"};
  Label lblStatus{*this, "lblStatus", ""};
  Label Label9{*this, "Label9", "View Port - Ignore Please"};
  /// The text of the file that is being worked on, for show: the work is done beside it.
  RichTextBox txtEdit{*this, "txtEdit"};

 private:
  void Bind();
  Arrangement Arranged();
  void cmdStart_Click();
  void DoReplace(const TextSearch& find);
  void ShowText(const std::string& text);
  /// Tells what has kept the file from being read.
  void Report(FileOutcome outcome);
};

}  // namespace tagsmith::sitetools
