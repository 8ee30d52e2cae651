#include <gtest/gtest.h>

#include "generators/Install.h"
#include "generators/frmValControls.h"
#include "services/Dialogs.h"
#include "support/GoldenFolders.h"
#include "toolbars/Install.h"

namespace tagsmith::generators {
namespace {

void InstallAll(RunningProgram& program) {
  toolbars::Install(program.app);
  Install(program.app);
}

TEST(Snippets, EachFolderGivesTheTextAfterInOneUndoStep) {
  RunGoldenFolders(TAGSMITH_GOLDEN_FOLDER, InstallAll);
}

class ScriptPages : public ::testing::Test {
 protected:
  ScriptPages() {
    InstallAll(program);
    files.AddFile("c:\\tagsmith\\html_class.inc", "class");
    files.AddFile("c:\\tagsmith\\html_class_documentation.txt", "words");
    files.AddFile("c:\\séte\\html_class_documentation.txt", "old, and not asked about");
    program.Begin();
    program.form.SetDocumentName("c:\\séte\\page.html");
  }

  /// The pane's text after `button` and what `act` does in the dialog.
  std::string Validate(const char* button, std::function<void(frmValControls&)> act) {
    program.form.txtEdit.SetText("");
    program.app.gResultText = "of another dialog";
    program.desktop.OnModal<frmValControls>(std::move(act));
    program.Click(button);
    return program.form.txtEdit.Text();
  }
  void CopyAndSee(std::string_view message, int flags, int answer = kOk) {
    program.desktop.ExpectMsgBox(message, flags, "File Copy: html_class.inc", answer);
    program.Click("cmdCopyINC");
  }
  void ExpectCopiesIn(const std::string& folder) {
    EXPECT_EQ(files.Contents(folder + "html_class.inc"), "class");
    EXPECT_EQ(files.Contents(folder + "html_class_documentation.txt"), "words");
  }

  RunningProgram program;
  MemoryFiles& files = program.desktop.files;
};

TEST_F(ScriptPages, NoButtonIsLeftWithoutItsCommand) {
  constexpr int kUserPage = 5;
  for (const Control* control : program.form.Controls()) {
    const auto* button = dynamic_cast<const CommandButton*>(control);
    if (button == nullptr || button->Container() != &program.form.MyTabScript) continue;
    if (button->Page() == kUserPage) continue;
    EXPECT_EQ(button->onClick.IsBound(), button->Name() != "cmdPHPCheckBrowser") << button->Name();
  }
}

TEST_F(ScriptPages, TheValidationFollowsTheOptionsAndNotTheButtonThatOpenedIt) {
  const auto insert = [](const char* language) {
    return [language](frmValControls& form) {
      form.optLTE.Click();
      form.Get<OptionButton>(language).Click();
      form.txtValue.Type("7");
      form.cmdInsert.Click();
    };
  };
  EXPECT_EQ(Validate("cmdVBFormVal", insert("optJavaScript")).find("<=7)"), 10U);
  EXPECT_EQ(Validate("cmdJSFormVal", insert("optVBScript")).find("<=7 "), 9U);
}

TEST_F(ScriptPages, TheValidationStartsAfreshAndLeavingItInsertsNothing) {
  for (const bool basic : {false, true}) {
    const auto fillAndLeave = [basic](frmValControls& form) {
      EXPECT_EQ(form.optVBScript.Value(), basic);
      EXPECT_TRUE(form.optEqualTo.Value());
      form.optLessThan.Click();
      basic ? form.cmdCancel.Click() : form.UserClose();
    };
    EXPECT_EQ(Validate(basic ? "cmdVBFormVal" : "cmdJSFormVal", fillAndLeave), "");
  }
}

TEST_F(ScriptPages, TheClassGoesBesideTheDocumentOrIntoTheCurrentDirectory) {
  CopyAndSee("Copy Complete", 64);
  ExpectCopiesIn("c:\\séte\\");
  program.form.SetDocumentName(kNewDocument);
  CopyAndSee("Copy Complete", 64);
  ExpectCopiesIn("c:\\");
}

TEST_F(ScriptPages, AnExistingClassIsReplacedOnYesOnly) {
  constexpr const char* kQuestion =
      "The File already exists in the directory\r\nDo you wish to overwrite the current file?";
  files.AddFile("c:\\séte\\html_class.inc", "mine");
  CopyAndSee(kQuestion, 35, kNo);
  CopyAndSee(kQuestion, 35, kCancel);
  EXPECT_EQ(files.Contents("c:\\séte\\html_class.inc"), "mine");
  CopyAndSee(kQuestion, 35, kYes);
  ExpectCopiesIn("c:\\séte\\");
}

TEST_F(ScriptPages, AFailedCopyOfTheClassIsReportedAndNotCalledComplete) {
  files.SetFault("c:\\séte", MemoryFiles::Fault::kNotWritable);
  CopyAndSee("Permission denied: c:\\séte\\html_class.inc", kOkOnly);
}

}  // namespace
}  // namespace tagsmith::generators
