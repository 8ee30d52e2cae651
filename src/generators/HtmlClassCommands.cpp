#include "generators/HtmlClassCommands.h"

#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/Buttons.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/FileSystem.h"

namespace tagsmith::generators {
namespace {

constexpr std::string_view kClassFile = "html_class.inc";
constexpr std::string_view kDocumentationFile = "html_class_documentation.txt";
constexpr std::string_view kTitle = "File Copy: html_class.inc";

// `target` ends in a backslash, or is empty for the current directory.
void CopyClassTo(Application& application, const std::string& target) {
  const std::string source = AddBackslash(application.Path());
  for (const std::string_view name : {kClassFile, kDocumentationFile}) {
    application.platform.files.CopyFile(std::string(source).append(name),
                                        std::string(target).append(name));
  }
  application.MainForm().MyFileList.Refresh();
}

void CopyClass(Application& application) {
  frmMain& form = application.MainForm();
  const std::string target = GetPathOnly(form.DocumentName());
  if (!FileExists(application, std::string(target).append(kClassFile))) {
    CopyClassTo(application, target);
    application.MsgBox(form, "Copy Complete", kInformationIcon, kTitle);
    return;
  }
  const int answer = application.MsgBox(form,
                                        "The File already exists in the directory\r\n"
                                        "Do you wish to overwrite the current file?",
                                        kYesNoCancel + kQuestionIcon, kTitle);
  if (answer == kYes) CopyClassTo(application, target);
}

void cmdCopyINC_Click(Application& application) {
  try {
    CopyClass(application);
  } catch (const Error& error) {
    application.MsgBox(application.MainForm(), error.what(), kOkOnly, kTitle);
  }
}

}  // namespace

void BindHtmlClassCommands(Application& application) {
  application.MainForm().Get<CommandButton>("cmdCopyINC").onClick = [&application] {
    cmdCopyINC_Click(application);
  };
}

}  // namespace tagsmith::generators
