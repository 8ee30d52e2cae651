#pragma once

#include <string_view>

#include "services/Buttons.h"
#include "services/CommonDialog.h"
#include "services/FileBoxes.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Menu.h"
#include "services/Ranges.h"
#include "services/TextBox.h"
#include "sitetools/IndexPage.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::sitetools {

/// Writes the index page of a directory in the format that `gExportFormat` names. While a page is
/// in the making Start, Back, Exit and the lists take no notice of the user; closing the form ends
/// the run, and no page is written. It opens on the process's current directory.
class frmFileManDialog : public Form {
 public:
  explicit frmFileManDialog(Application& application);

  Menu mnuAbout{*this, "mnuAbout", "&About"};

  DriveListBox MyDrive{*this, "MyDrive"};
  DirListBox MyDirectory{*this, "MyDirectory"};
  FileListBox MyFiles{*this, "MyFiles"};
  Label Label1{*this, "Label1", "Choose the directory to process."};
  CheckBox chkUnderline{*this, "chkUnderline", "Include Dynamic Underlining of Links"};
  Label lblFileToExport{*this, "lblFileToExport", "File To Create"};
  TextBox txtFileName{*this, "txtFileName"};
  CommandButton cmdBrowse{*this, "cmdBrowse"};
  CommonDialog MyDialog{*this};
  Label Label2{*this, "Label2", "Status"};
  ProgressBar MyProgress{*this, "MyProgress"};
  CommandButton cmdStart{*this, "cmdStart"};
  CommandButton cmdCancel{*this, "cmdCancel"};
  CommandButton cmdBack{*this, "cmdBack"};

  // --- One page each, from the form's fields; they tell the user how it ended ---

  void EMenu();
  void IList();
  void UList();
  void OList();

  /// Writes `Text` and a line end. What fails is not told: the old file is as it was then.
  void SaveText(std::string_view FileName, std::string_view Text);

 private:
  class Run;

  void SetLooks();
  Arrangement Arranged();
  void Bind();
  void mnuAbout_Click();
  void cmdBrowse_Click();
  void cmdBack_Click();
  void cmdStart_Click();
  /// False if the form was closed meanwhile: nothing was written. Throws `Error` for a directory
  /// that cannot be read.
  bool WritePage(IndexFormat format);
  void WriteList(IndexFormat format);
  void Inform(std::string_view prompt, std::string_view title);

  Application& application_;
  Run* run_ = nullptr;  ///< The one that is going on; null for none.
};

}  // namespace tagsmith::sitetools
