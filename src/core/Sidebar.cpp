#include "core/Sidebar.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "core/Application.h"
#include "core/FileCommands.h"
#include "core/RecentFiles.h"
#include "core/SettingsKeys.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/CaseFold.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/FileSystem.h"
#include "services/Pictures.h"

namespace tagsmith {
namespace {

constexpr int kBeginDrag = 1;
constexpr int kEndDrag = 2;
constexpr std::string_view kFirstDrive = "c:";
constexpr std::string_view kFirstRoot = "c:\\";

bool IsPictureFile(std::string_view name) {
  constexpr std::array<std::string_view, 4> kEndings = {"bmp", "gif", "jpg", "png"};
  name = Trim(name);
  const std::string_view ending = name.substr(name.size() - std::min<std::size_t>(name.size(), 3));
  return std::any_of(kEndings.begin(), kEndings.end(),
                     [ending](auto known) { return EqualWithoutCase(ending, known); });
}

// A length in twips as the text of its pixels.
std::string PixelText(Twips length) {
  std::array<char, 32> text{};
  const double pixels = static_cast<double>(length) / kTwipsPerPixel;
  return {
      text.data(),
      std::to_chars(text.data(), text.data() + text.size(), pixels, std::chars_format::fixed).ptr};
}

std::string Attribute(std::string_view name, std::string_view value) {
  return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

}  // namespace

Sidebar::Sidebar(frmMain& form) : form_(form), application_(form.App()) { Bind(); }

void Sidebar::Bind() {
  form_.MyDrive.onChange = [this] { MyDrive_Change(); };
  form_.MyDirectory.onChange = [this] { MyDirectory_Change(); };
  form_.MyDirectory.onClick = [this] { ChangeToolTips(); };
  form_.MyFileList.onClick = [this] { ChangeToolTips(); };
  form_.MyFileList.onDblClick = [this] { MyFileList_DblClick(); };
  form_.MyFileList.onMouseDown = [this](int) { MyFileList_Mouse(kBeginDrag); };
  form_.MyFileList.onMouseUp = [this](int) { MyFileList_Mouse(kEndDrag); };
  form_.txtEdit.onDragDrop = [this](const Control& source, Twips, Twips) {
    txtEdit_DragDrop(source);
  };
  form_.mnuRefreshDriveLists.onClick = [this] { RefreshDriveLists(); };
}

bool Sidebar::ShowDrive(std::string_view drive, std::string_view directory) {
  try {
    form_.MyDrive.SetDrive(drive);
    form_.MyDirectory.SetPath(directory);
    return true;
  } catch (const Error&) {
    return false;
  }
}

void Sidebar::RestoreDriveAndDir() {
  const std::string drive = application_.GetSetting(settings::kDrive).substr(0, 2);
  const std::string directory = application_.GetSetting(settings::kDirectory);
  if (!ShowDrive(drive, directory)) ShowDrive(kFirstDrive, kFirstRoot);
}

void Sidebar::SaveDriveAndDir() {
  application_.SaveSetting(settings::kDrive, form_.MyDrive.Drive());
  application_.SaveSetting(settings::kDirectory, form_.MyDirectory.Path());
}

bool Sidebar::CanShow(std::string_view directory) const {
  const FileSystem& files = application_.platform.files;
  try {
    files.DirectoryNames(files.ResolveDirectory(directory, form_.MyDirectory.Path()));
    return true;
  } catch (const Error&) {
    return false;
  }
}

void Sidebar::SyncFileBoxes(std::string_view path) {
  const std::string drive = ParsePath(path, kPathDrive);
  const std::string directory = drive + ParsePath(path, kPathDirectory);
  // Asked beforehand, since opening the drive already leaves the directory that is shown.
  if (CanShow(drive) && CanShow(directory)) ShowDrive(drive, directory);
}

void Sidebar::RefreshDriveLists() {
  form_.MyDrive.Refresh();
  form_.MyDirectory.Refresh();
  form_.MyFileList.Refresh();
  ChangeToolTips();
}

void Sidebar::ChangeToolTips() {
  form_.MyDrive.SetToolTipText(form_.MyDrive.List(form_.MyDrive.ListIndex()));
  form_.MyDirectory.SetToolTipText(form_.MyDirectory.Path());
  form_.MyFileList.SetToolTipText(SelectedFile());
}

std::string Sidebar::SelectedFile() const {
  return form_.MyFileList.List(form_.MyFileList.ListIndex());
}

void Sidebar::MyDrive_Change() {
  try {
    form_.MyDirectory.SetPath(form_.MyDrive.Drive());
    ChangeToolTips();
  } catch (const Error&) {
    application_.MsgBox(form_, "Please Insert A Disk In The Drive First", kInformationIcon,
                        "Sorry...");
    // A first drive that cannot be read itself must not bring the question again and again.
    if (!form_.MyDrive.Drive().starts_with(kFirstDrive)) form_.MyDrive.SetDrive(kFirstDrive);
  }
}

void Sidebar::MyDirectory_Change() {
  form_.MyFileList.SetPath(form_.MyDirectory.Path());
  ChangeToolTips();
}

void Sidebar::MyFileList_DblClick() {
  // A save on the way may move the lists.
  const std::string path = AddBackslash(form_.MyDirectory.Path()) + SelectedFile();
  if (!form_.ConfirmLosingEdits(kOpeningPrompt)) return;
  if (form_.LoadText(path)) {
    form_.SetDocumentName(path);
    form_.Recent().AddToRecentlyUsed(path);
  } else {
    form_.Recent().AddToRecentMenu(path);
  }
}

void Sidebar::MyFileList_Mouse(int dragAction) {
  if (IsPictureFile(SelectedFile())) form_.MyFileList.Drag(dragAction);
}

void Sidebar::txtEdit_DragDrop(const Control& source) {
  const auto* list = dynamic_cast<const FileListBox*>(&source);
  const std::string name(list == nullptr ? "" : Trim(list->List(list->ListIndex())));
  if (IsPictureFile(name)) {
    MeasurePicture(name);
    form_.InsertAround(ImageTag(name), "</IMG>");
    form_.MarkChanged();
  }
  form_.MyImage.SetPicture(nullptr);
  form_.MyImage.SetTop(10);
  form_.MyImage.SetLeft(10);
}

void Sidebar::MeasurePicture(std::string_view name) {
  const std::string path = AddBackslash(form_.MyDirectory.Path()).append(name);
  try {
    form_.MyImage.SetPicture(application_.platform.pictures.LoadPicture(path));
  } catch (const Error&) {  // The tag is wanted all the same.
  }
}

std::string Sidebar::ImageTag(std::string_view name) const {
  std::string tag = "<IMG" + Attribute("Src", name);
  if (application_.gIncludeHeightWidth) {
    tag += Attribute("Width", PixelText(form_.MyImage.Width()));
    tag += Attribute("Height", PixelText(form_.MyImage.Height()));
  }
  return tag + Attribute("Border", "0") + ">";
}

}  // namespace tagsmith
