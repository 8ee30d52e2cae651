#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "sitetools/Install.h"
#include "sitetools/frmExportWizard.h"
#include "sitetools/frmFileManDialog.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"

namespace tagsmith::sitetools {
namespace {

constexpr std::string_view kTitle = "File Management Dialog";
constexpr std::string_view kDone = "The HTML File Has Been Created";

std::string Golden(const std::string& name) {
  std::ifstream file(TAGSMITH_GOLDEN_PAGES "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class FileManDialog : public ::testing::Test {
 protected:
  FileManDialog() {
    for (const std::string name : {"true.gif", "false.gif", "list.js"}) {
      files.AddFile("c:\\tagsmith\\" + name, name);
    }
    for (const char* path :
         {"alpha\\Zeta.html", "alpha\\a.b.html", "alpha\\readme", "alpha\\below\\deep.html",
          "ünder\\it's <1>.htm", "ünder\\é.html", "own.html"}) {
      files.AddFile("c:\\site\\" + std::string(path), "");
    }
    files.AddDirectory("c:\\site\\Beta");
    files.AddDirectory("c:\\bare");
    form = &Open();
  }

  frmFileManDialog& Open() {
    auto& opened = program.app.Instance<frmFileManDialog>();
    opened.Show();
    opened.MyDirectory.SetPath("c:\\site");
    opened.txtFileName.SetText("c:\\out.html");
    return opened;
  }
  /// Writes c:\out.html.
  void Start(std::string_view format, std::string_view prompt = kDone,
             std::string_view title = kTitle) {
    program.app.gExportFormat = format;
    program.desktop.ExpectMsgBox(prompt, kInformationIcon, title);
    form->cmdStart.Click();
  }
  std::string Page() const { return files.Contents("c:\\out.html"); }

  RunningProgram program;
  MemoryFiles& files = program.desktop.files;
  frmFileManDialog* form = nullptr;
};

TEST_F(FileManDialog, WritesThePagesByteForByte) {
  for (const std::string format : {"EMenu", "IList", "UList", "OList"}) {
    for (const int underline : {0, 1}) {
      form->chkUnderline.SetValue(underline);
      form->MyDirectory.SetPath("c:\\site");
      Start(format);
      EXPECT_EQ(Page(), Golden(format + (underline == 1 ? "_underlined.html" : ".html")));
    }
    form->MyDirectory.SetPath("c:\\bare");
    Start(format);
    EXPECT_EQ(Page(), Golden(format + "_bare.html"));
  }
}

TEST_F(FileManDialog, FollowsTheWizardAndLeadsBackToIt) {
  form->Unload();
  program.desktop.AddPicture("c:\\tagsmith\\preview_ulist.png", 30, 20);
  toolbars::Install(program.app);
  Install(program.app);
  program.form.Get<CommandButton>("cmdFileManDialog").Click();
  const FormPool& forms = program.desktop.platform.forms;
  frmExportWizard& wizard = *forms.Loaded<frmExportWizard>();
  EXPECT_EQ(wizard.imgPreview(0).GetPicture(), nullptr) << "a missing picture is not told";
  wizard.optChoices(2).Click();
  EXPECT_FALSE(wizard.imgPreview(0).Visible());
  EXPECT_TRUE(wizard.imgPreview(2).Visible());
  EXPECT_NE(wizard.imgPreview(2).GetPicture(), nullptr);
  wizard.cmdNext.Click();
  EXPECT_EQ(program.app.gExportFormat, "UList");

  forms.Loaded<frmFileManDialog>()->txtFileName.SetText("kept?");
  forms.Loaded<frmFileManDialog>()->cmdBack.Click();
  EXPECT_EQ(forms.Loaded<frmFileManDialog>(), nullptr);
  forms.Loaded<frmExportWizard>()->cmdNext.Click();
  EXPECT_EQ(program.app.gExportFormat, "EMenu");
  EXPECT_EQ(forms.Loaded<frmFileManDialog>()->txtFileName.Text(), "");
}

TEST_F(FileManDialog, AsksForAFileNameAndTakesItFromTheDialog) {
  form->txtFileName.SetText("");
  Start("", "You must supply a file to create");
  EXPECT_TRUE(form->txtFileName.HasFocus());
  program.desktop.ExpectOpenFile(std::nullopt);
  form->cmdBrowse.Click();
  EXPECT_EQ(form->txtFileName.Text(), "");
  program.desktop.ExpectOpenFile("c:\\out.html");
  form->cmdBrowse.Click();
  Start("");
  EXPECT_EQ(program.app.gExportFormat, "EMenu");
  EXPECT_EQ(Page(), Golden("EMenu.html"));
}

TEST_F(FileManDialog, TellsNothingOfAPageThatCannotBeWritten) {
  files.AddFile("c:\\out.html", "old");
  files.SetFault("c:\\out.html", MemoryFiles::Fault::kDiskFull);
  Start("OList");
  EXPECT_EQ(Page(), "old");
}

TEST_F(FileManDialog, CopiesTheSupportFilesThatAreMissing) {
  files.AddFile("c:\\list.js", "mine");
  files.Remove("c:\\tagsmith\\false.gif");
  Start("EMenu", "There was an error in creating the file", "Sorry...");
  EXPECT_EQ(Page(), Golden("EMenu.html")) << "what was written stays";
  EXPECT_EQ(files.Contents("c:\\true.gif"), "true.gif");
  files.AddFile("c:\\tagsmith\\false.gif", "false.gif");
  Start("EMenu");
  EXPECT_EQ(files.Contents("c:\\false.gif"), "false.gif");
  EXPECT_EQ(files.Contents("c:\\list.js"), "mine");
}

TEST_F(FileManDialog, GivesUpAtADirectoryThatCannotBeReadAndCanBeginAgain) {
  files.SetFault("c:\\site\\ünder", MemoryFiles::Fault::kUnreadable);
  Start("EMenu", "There was an error in creating the file", "Sorry...");
  EXPECT_FALSE(files.FileExists("c:\\out.html"));
  EXPECT_EQ(form->MyDirectory.Path(), "c:\\site");
  files.SetFault("c:\\site\\ünder", MemoryFiles::Fault::kNone);
  Start("IList");
  EXPECT_EQ(Page(), Golden("IList.html"));
}

TEST_F(FileManDialog, TakesNoNoticeOfTheUserDuringARun) {
  files.AddDrive('d', "stick", "c:\\bare");
  form->MyDrive.Refresh();
  int yields = 0;
  program.desktop.onDoEvents = [&] {
    ++yields;
    form->MyDrive.Select(1);
    form->MyDirectory.Open(-2);
    form->cmdStart.Click();
    form->cmdBack.Click();
    form->cmdCancel.Click();
    EXPECT_EQ(form->MyDrive.ListIndex(), 0);
    EXPECT_TRUE(form->MyDirectory.Path().starts_with("c:\\site\\")) << form->MyDirectory.Path();
  };
  Start("UList");
  EXPECT_EQ(yields, 5) << "once for each file";
  EXPECT_EQ(Page(), Golden("UList.html"));
  EXPECT_EQ(form->MyDirectory.Path(), "c:\\site");
  form->cmdCancel.Click();
  EXPECT_EQ(program.desktop.platform.forms.Loaded<frmFileManDialog>(), nullptr);
}

TEST_F(FileManDialog, EndsTheRunWithoutAPageWhenItIsClosed) {
  program.Begin();
  const std::function<void()> closings[] = {[this] { form->UserClose(); },
                                            [this] { program.form.UserClose(); }};
  for (const auto& close : closings) {
    int yields = 0;
    program.desktop.onDoEvents = [&] {
      ++yields;
      close();
    };
    form = &Open();
    form->cmdStart.Click();
    EXPECT_EQ(yields, 1);
    EXPECT_EQ(program.desktop.platform.forms.Loaded<frmFileManDialog>(), nullptr);
    EXPECT_FALSE(files.FileExists("c:\\out.html"));
  }
}

}  // namespace
}  // namespace tagsmith::sitetools
