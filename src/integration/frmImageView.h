#pragma once

#include "services/Buttons.h"
#include "services/FileBoxes.h"
#include "services/Form.h"
#include "services/Graphics.h"

namespace tagsmith {

class Application;

namespace integration {

/// Shows picture files, one at a time in its natural size. What is larger than the form is cut off
/// at the form's edge, and of what is no picture stands the reason.
class frmImageView : public Form {
 public:
  explicit frmImageView(Application& application);

  DriveListBox MyDrive{*this, "MyDrive"};
  DirListBox MyDirectory{*this, "MyDirectory"};
  FileListBox MyFileList{*this, "MyFileList"};
  CommandButton cmdOK{*this, "cmdOK"};
  Image imgView{*this, "imgView"};
  /// In its place, why the chosen file is not shown.
  Label lblProblem{*this, "lblProblem", ""};

 private:
  void PlaceControls();
  void Form_Resize();
  void MyFileList_Click();

  Application& application_;
};

}  // namespace integration
}  // namespace tagsmith
