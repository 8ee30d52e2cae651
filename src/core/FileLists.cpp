#include "core/FileLists.h"

#include <utility>

#include "core/Application.h"
#include "core/frmMain.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/Form.h"

namespace tagsmith {
namespace {

constexpr std::string_view kFirstDrive = "c:";

void OpenDrive(Application& application, const FileLists& lists) {
  try {
    lists.directory.SetPath(lists.drive.Drive());
  } catch (const Error&) {
    application.MsgBox(lists.form, "Please Insert A Disk In The Drive First", kInformationIcon,
                       "Sorry...");
    // A first drive that cannot be read itself must not bring the question again and again.
    if (!lists.drive.Drive().starts_with(kFirstDrive)) lists.drive.SetDrive(kFirstDrive);
  }
}

}  // namespace

void ChainFileLists(Application& application, const FileLists& lists,
                    std::function<void()> onDirectory) {
  lists.drive.onChange = [&application, lists] { OpenDrive(application, lists); };
  lists.directory.onChange = [lists, onDirectory = std::move(onDirectory)] {
    if (lists.files != nullptr) lists.files->SetPath(lists.directory.Path());
    if (onDirectory) onDirectory();
  };
}

void OpenAtMainForm(Application& application, const FileLists& lists) {
  frmMain& main = application.MainForm();
  main.MyDirectory.Refresh();  // Its folder may have gone meanwhile.
  lists.drive.SetDrive(main.MyDrive.Drive());
  lists.directory.SetPath(main.MyDirectory.Path());
}

}  // namespace tagsmith
