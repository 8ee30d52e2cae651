#pragma once

#include <string>
#include <string_view>

namespace tagsmith {

class Application;
class Control;
class frmMain;

/// The file browser on the left: drive, directory and file list, and the drop of a picture from it
/// onto the pane.
class Sidebar {
 public:
  explicit Sidebar(frmMain& form);

  /// Opens the stored drive and directory; "c:\" where that cannot be done.
  void RestoreDriveAndDir();
  void SaveDriveAndDir();
  /// Opens the drive and folder of a file. A folder that cannot be shown leaves the lists as they
  /// are, without a message.
  void SyncFileBoxes(std::string_view path);
  /// Reads all three lists anew.
  void RefreshDriveLists();
  /// The tool tips show what the lists have selected.
  void ChangeToolTips();

 private:
  void Bind();
  std::string SelectedFile() const;
  bool CanShow(std::string_view directory) const;
  /// False where one of the two cannot be opened.
  bool ShowDrive(std::string_view drive, std::string_view directory);
  void MyDrive_Change();
  void MyDirectory_Change();
  void MyFileList_DblClick();
  void MyFileList_Mouse(int dragAction);
  void txtEdit_DragDrop(const Control& source);
  void MeasurePicture(std::string_view name);
  std::string ImageTag(std::string_view name) const;

  frmMain& form_;
  Application& application_;
};

}  // namespace tagsmith
