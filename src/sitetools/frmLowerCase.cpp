#include "sitetools/frmLowerCase.h"

#include <algorithm>
#include <new>
#include <string_view>

#include "core/Application.h"
#include "core/FileLists.h"
#include "core/Sidebar.h"
#include "core/frmMain.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/EventQueue.h"
#include "sitetools/PaintPace.h"

namespace tagsmith::sitetools {
namespace {

constexpr std::string_view kTitle = "Convert To Lower Case Dialog";
constexpr std::size_t kMostPathsTold = 10;

// An object whose lifetime is one walk.
class Walking {
 public:
  explicit Walking(bool& walking) : walking_(walking) { walking_ = true; }
  ~Walking() { walking_ = false; }
  Walking(const Walking&) = delete;
  Walking& operator=(const Walking&) = delete;

 private:
  bool& walking_;
};

}  // namespace

frmLowerCase::frmLowerCase(Application& application)
    : Form(application.platform, "frmLowerCase"), application_(application) {
  SetCaption(kTitle);
  cmdStart.SetCaption("&Start");
  cmdCancel.SetCaption("E&xit");
  SetArrangement(
      Column({MyDrive, Row({MyDirectory, MyFileList}), Label1, ButtonRow({cmdStart, cmdCancel})}));
  Bind();
}

void frmLowerCase::Bind() {
  const FileLists lists{*this, MyDrive, MyDirectory, &MyFileList};
  onLoad = [this, lists] { OpenAtMainForm(application_, lists); };
  ChainFileLists(application_, lists);
  MyDrive.onChange = [this, openDrive = MyDrive.onChange.Bound()] {
    if (!walking_) openDrive();
  };
  cmdStart.onClick = [this] { cmdStart_Click(); };
  cmdCancel.onClick = [this] { Unload(); };
}

void frmLowerCase::cmdStart_Click() {
  if (walking_) return;
  const std::string highlighted = MyDirectory.List(MyDirectory.ListIndex());
  if (MyDirectory.Path() != highlighted) {
    MyDirectory.SetPath(highlighted);
    return;
  }
  std::optional<NamesLeft> left;
  {
    const Walking walking(walking_);
    const std::string drive = MyDrive.Drive();
    left = WalkDirectory(highlighted);
    if (!left || !IsLoaded()) return;
    ShowAgain(highlighted);
    if (MyDrive.Drive() != drive) MyDrive.SetDrive(drive);
    application_.MainForm().Lists().RefreshDriveLists();
  }
  if (left->count > 0) TellNamesLeft(*left);
}

void frmLowerCase::ShowAgain(const std::string& directory) {
  try {
    MyDirectory.SetPath(directory);
  } catch (const Error&) {  // Gone in the meantime.
    MyDirectory.Refresh();
  }
}

std::optional<NamesLeft> frmLowerCase::WalkDirectory(const std::string& Target) {
  const auto abandon = [this] {
    application_.MsgBox(*this, "You've filled the list box. Abandoning search...", kOkOnly,
                        application_.Title());
    return NamesLeft();
  };
  PaintPace pace(*this);
  try {
    return LowerCaseBelow(application_.platform.files, Target, [&](std::string_view path) {
      pace.Step([&] { MyDirectory.SetPath(path); });
      application_.platform.events.DoEvents();
      return IsLoaded();
    });
  } catch (const std::bad_alloc&) {
    return abandon();
  } catch (const Error& error) {
    if (error.Code() == ErrorCode::kOutOfMemory) return abandon();
    application_.MsgBox(*this, error.what(), kOkOnly, application_.Title());
    application_.platform.events.EndProgram();
    return std::nullopt;
  }
}

void frmLowerCase::TellNamesLeft(const NamesLeft& left) {
  const std::size_t told = std::min(left.paths.size(), kMostPathsTold);
  std::string prompt =
      "These keep their names, because another one has the lowercase name already:\r\n";
  for (std::size_t i = 0; i < told; ++i) prompt += "\r\n" + left.paths[i];
  if (left.count > told) prompt += "\r\n... and " + std::to_string(left.count - told) + " more";
  application_.MsgBox(*this, prompt, kInformationIcon, kTitle);
}

}  // namespace tagsmith::sitetools
