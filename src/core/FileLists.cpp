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

void SayNoDisk(Application& application, const FileLists& lists) {
  application.MsgBox(lists.form, "Please Insert A Disk In The Drive First", kInformationIcon,
                     "Sorry...");
}

void OpenDrive(Application& application, const FileLists& lists) {
  try {
    lists.directory.SetPath(lists.drive.Drive());
  } catch (const Error&) {
    SayNoDisk(application, lists);
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
  try {
    lists.drive.SetDrive(main.MyDrive.Drive());
  } catch (const Error&) {  // The main form still shows a drive that has gone.
    SayNoDisk(application, lists);
    lists.drive.SetDrive(kFirstDrive);
  }
  try {
    lists.directory.SetPath(main.MyDirectory.Path());
  } catch (const Error&) {  // Its folder has gone meanwhile: the nearest one above it opens.
    main.MyDirectory.Refresh();
    lists.directory.SetPath(main.MyDirectory.Path());
  }
}

}  // namespace tagsmith
