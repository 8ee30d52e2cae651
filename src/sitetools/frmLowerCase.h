#pragma once

#include <optional>
#include <string>

#include "services/Buttons.h"
#include "services/FileBoxes.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "sitetools/LowerCaseWalk.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::sitetools {

/// Gives every directory and file below the open directory a name in lower case. The lists move
/// through the tree meanwhile; what is done to them then has no effect on the walk. Closing the
/// form ends it at the next directory.
class frmLowerCase : public Form {
 public:
  explicit frmLowerCase(Application& application);

  DriveListBox MyDrive{*this, "MyDrive"};
  DirListBox MyDirectory{*this, "MyDirectory"};
  FileListBox MyFileList{*this, "MyFileList"};
  Label Label1{*this, "Label1",
               "When you click Start, all directories and files from your current position and "
               "lower will be converted to lowercase names."};
  CommandButton cmdStart{*this, "cmdStart"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void Bind();
  void cmdStart_Click();
  /// What the walk left; nothing when an error has ended the program.
  std::optional<NamesLeft> WalkDirectory(const std::string& Target);
  /// Opens the directory again, or the nearest one above it.
  void ShowAgain(const std::string& directory);
  void TellNamesLeft(const NamesLeft& left);

  Application& application_;
  bool walking_ = false;
};

}  // namespace tagsmith::sitetools
