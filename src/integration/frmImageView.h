#pragma once

#include "services/Buttons.h"
#include "services/FileBoxes.h"
#include "services/Form.h"
#include "services/Graphics.h"

namespace tagsmith {

class Application;

namespace integration {

/// Shows picture files, one at a time in its natural size. What is larger than the form is cut off
/// at the form's edge.
class frmImageView : public Form {
 public:
  explicit frmImageView(Application& application);

  DriveListBox MyDrive{*this, "MyDrive"};
  DirListBox MyDirectory{*this, "MyDirectory"};
  FileListBox MyFileList{*this, "MyFileList"};
  CommandButton cmdOK{*this, "cmdOK"};
  /// The border of `imgView`, and the ground of a picture that lets it shine through.
  Shape shpBorder{*this, "shpBorder"};
  Image imgView{*this, "imgView"};

 private:
  void PlaceControls();
  void ShowBorder();
  void Form_Resize();
  void MyFileList_Click();

  Application& application_;
};

}  // namespace integration
}  // namespace tagsmith
