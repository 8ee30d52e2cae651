#include <gtest/gtest.h>

#include "generators/Install.h"
#include "generators/frmPHPDataDialog.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"

namespace tagsmith::generators {
namespace {

constexpr const char* kTitle = "PHP Database Dialog";

class PhpDialog : public ::testing::Test {
 protected:
  PhpDialog() {
    toolbars::Install(program.app);
    Install(program.app);
    files.AddDirectory("c:\\séte");
    files.AddDrive('e', "empty", "c:\\media\\none");
    program.Begin();
    program.form.MyDirectory.SetPath("c:\\séte");
  }

  void Open(std::function<void(frmPHPDataDialog&)> act) {
    desktop.OnModal<frmPHPDataDialog>([act = std::move(act)](frmPHPDataDialog& form) {
      act(form);
      form.UserClose();
    });
    program.form.Get<CommandButton>("cmdPHPDataDialog").Click();
  }
  // Creates the pages and gives how many files the folder has then.
  std::size_t Create(frmPHPDataDialog& form) {
    desktop.ExpectMsgBox("The Pages Have Been Created", kInformationIcon, kTitle);
    form.cmdCreate.Click();
    EXPECT_EQ(form.MousePointer(), kDefaultPointer);
    return files.FileNames("c:\\séte").size();
  }

  RunningProgram program;
  ScriptedDesktop& desktop = program.desktop;
  MemoryFiles& files = program.desktop.files;
};

TEST_F(PhpDialog, WritesWhatIsCheckedAndGoesOnBehindAPageThatCannotBeWritten) {
  files.AddFile("c:\\séte\\add_form.html", "old");
  files.SetFault("c:\\séte\\add_form.html", MemoryFiles::Fault::kNotWritable);
  Open([this](frmPHPDataDialog& form) {
    for (const int box : {0, 1, 3, 4, 5}) form.chkPages(box).Click();
    EXPECT_EQ(Create(form), 1U);
    for (const int box : {0, 1, 3, 4, 5}) form.chkPages(box).Click();
    EXPECT_EQ(Create(form), 9U);
    form.txtFields.Type("Ä|String");
    EXPECT_EQ(Create(form), 9U);
  });
  EXPECT_EQ(files.Contents("c:\\séte\\add_form.html"), "old");
  EXPECT_NE(files.Contents("c:\\séte\\add.php").find(" (Ä) VALUES ('$Ä') "), std::string::npos);
}

TEST_F(PhpDialog, KeepsItsFieldsWhenALoadFailsAndRepeatsTheLastFileOnCancel) {
  files.AddFile("c:\\whole.txt", "\"d\xE9\"\r\n\"t\"\r\n\"u\"\r\n\"p\"\r\n\"A|\"S\"|\"\r\n");
  files.AddFile("c:\\page.html", "<HTML>");
  Open([this](frmPHPDataDialog& form) {
    const auto load = [&](std::optional<std::string> file, std::string_view message = {}) {
      desktop.ExpectOpenFile(std::move(file));
      if (!message.empty()) desktop.ExpectMsgBox(message, kInformationIcon, kTitle);
      form.cmdLoad.Click();
    };
    load({});
    load("c:\\whole.txt");
    form.txtDSN.SetText("other");
    load({});
    for (const char* bad : {"c:\\page.html", "c:\\none.txt"}) load(bad, "Could Not Load The File");
    for (const char* message : {"The File Has Been Saved", "Could Not Save The File"}) {
      desktop.ExpectSaveFile("c:\\p.txt");
      desktop.ExpectMsgBox(message, kInformationIcon, kTitle);
      form.cmdSave.Click();
      files.SetFault("c:\\p.txt", MemoryFiles::Fault::kDiskFull);
    }
  });
  EXPECT_EQ(files.Contents("c:\\p.txt"), "\"dé\"\r\n\"t\"\r\n\"u\"\r\n\"p\"\r\n\"A|\"S\"|\"\r\n");
}

TEST_F(PhpDialog, HasListsOfItsOwn) {
  Open([this](frmPHPDataDialog& form) {
    desktop.ExpectMsgBox("Please Insert A Disk In The Drive First", kInformationIcon, "Sorry...");
    form.MyDrive.Select(1);
    EXPECT_EQ(form.MyDirectory.Path(), "c:\\");
  });
  EXPECT_EQ(program.form.MyDirectory.Path(), "c:\\séte");
}

}  // namespace
}  // namespace tagsmith::generators
