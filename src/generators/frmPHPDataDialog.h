#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "generators/GeneratedFile.h"
#include "generators/PhpPages.h"
#include "generators/PhpProjectFile.h"
#include "services/Buttons.h"
#include "services/CommonDialog.h"
#include "services/FileBoxes.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/TextBox.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::generators {

/// Writes the PHP pages that add, update, delete and list the records of one table of an ODBC
/// database into a directory. Its lists are its own: the main form's stay where they are.
class frmPHPDataDialog : public Form {
 public:
  explicit frmPHPDataDialog(Application& application);

  Frame fraOutputOptions{*this, "fraOutputOptions", "Output Directory"};
  DriveListBox MyDrive{*this, "MyDrive"};
  DirListBox MyDirectory{*this, "MyDirectory"};
  Frame fraDBInfo{*this, "fraDBInfo", "ODBC Database Information"};
  Label Label1{*this, "Label1", "DSN"};
  TextBox txtDSN{*this, "txtDSN"};
  Label Label2{*this, "Label2", "Username"};
  TextBox txtUserName{*this, "txtUserName"};
  Label Label3{*this, "Label3", "Password"};
  TextBox txtPassword{*this, "txtPassword"};
  Label Label6{*this, "Label6", "Table"};
  TextBox txtTable{*this, "txtTable"};
  Label Label4{*this, "Label4", "Fields (Ex:  FirstName|String|LastName|String|Age|Numeric)"};
  TextBox txtFields{*this, "txtFields"};
  CommandButton cmdLoad{*this, "cmdLoad"};
  CommandButton cmdSave{*this, "cmdSave"};
  Frame fraPages{*this, "fraPages", "Pages To Create"};
  Label Label5{*this, "Label5",
               "The PHP Database Dialog only creates ODBC databases at this time.  Future versions "
               "may include other formats.  Please choose the directory to publish into on the "
               "left and supply the information needed.  Then, click Create!"};
  CommandButton cmdCreate{*this, "cmdCreate"};
  CommandButton cmdExit{*this, "cmdExit"};
  CommonDialog MyDialog{*this};

  /// By its index in the control array: 0 Add, 1 Update, 3 Delete, 4 List All, 5 Menu.
  CheckBox& chkPages(int index) const { return Get<CheckBox>("chkPages", index); }

  /// The tokens of the field list, as the last Create split them.
  std::vector<std::string> FieldArray;

 private:
  void Bind();
  Arrangement Arranged();
  void cmdCreate_Click();
  void cmdLoad_Click();
  void cmdSave_Click();
  void Fill_Arrays();
  PhpSite Site() const;
  void SaveTheFile(std::string_view FileName, std::string_view Text);
  /// Nothing if the dialog's file cannot be read or is no project.
  std::optional<PhpProject> LoadProject() const;
  void Inform(std::string_view prompt);

  Application& application_;
  std::array<CheckBox, 5> pages_{{{*this, "chkPages", "Add", 0},
                                  {*this, "chkPages", "Update", 1},
                                  {*this, "chkPages", "Delete", 3},
                                  {*this, "chkPages", "List All", 4},
                                  {*this, "chkPages", "Menu", 5}}};
};

}  // namespace tagsmith::generators
