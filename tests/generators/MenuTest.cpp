#include <gtest/gtest.h>

#include "core/Template.h"
#include "generators/MenuPage.h"
#include "generators/frmJSMenu.h"
#include "services/Utf8.h"
#include "support/RunningProgram.h"

namespace tagsmith::generators {
namespace {

constexpr std::string_view kScript = R"(          myList = new List(true, width, height);

// Tö

mySubList0 = new List(false, width, height);
mySubList0.addItem("<A Target='_self' Href='{}' Style='text-decoration: none' onMouseOver='this.style.textDecorationUnderline=true' onMouseOut='this.style.textDecorationNone=true'>"a"</A>");
myList.addList(mySubList0,"<B>Tö</B>");

// {i}

mySubList2 = new List(false, width, height);
myList.addList(mySubList2,"<B>{i}</B>");

// Build The List
)";

TEST(MenuPage, NumbersEmptyLinesTooAndTakesWholePairsAsTheyAre) {
  const std::string page = MenuPage("\xEF\xBB\xBFTö|\"a\"|{}|B\r\n\n{i}\r");
  EXPECT_NE(page.find(FillTemplate(kScript)), std::string::npos) << page;
  // Two topics and one pair count four.
  EXPECT_NE(page.find("\r\n#lItem4{position:absolute}\r\n</STYLE></HEAD>"), std::string::npos);
  EXPECT_TRUE(page.ends_with("<DIV ID=\"lItem4\" Name=\"lItem4\"></DIV>\r\n</BODY></HTML>"));
}

class MenuDialog : public ::testing::Test {
 protected:
  MenuDialog() {
    for (const std::string name : {"true.gif", "false.gif", "list.js"}) {
      files.AddFile("c:\\tagsmith\\" + name, name);
    }
    form.Show();
  }

  /// Presses a button that tells something; the pointer is back behind it.
  void Press(CommandButton& button, std::string_view prompt, std::string_view title) {
    program.desktop.ExpectMsgBox(prompt, kInformationIcon, title);
    button.Click();
    EXPECT_EQ(form.MousePointer(), kDefaultPointer);
  }
  void Load(std::string_view path) {
    form.txtImportFile.SetText(path);
    form.cmdLoad.Click();
  }
  void Create(std::string_view path) {
    form.txtExportFile.SetText(path);
    Press(form.cmdCreate, "The HTML File Has Been Saved", "JavaScript Menu Dialog");
  }
  void Save() { Press(form.cmdSave, "The Text File Has Been Saved", "JavaScript Menu Dialog"); }

  RunningProgram program;
  MemoryFiles& files = program.desktop.files;
  frmJSMenu& form = program.app.Instance<frmJSMenu>();
};

TEST_F(MenuDialog, RefusesWithTheFocusOnWhatIsMissing) {
  Press(form.cmdCreate, "You must supply an HTML filename for the menu", "Sorry");
  EXPECT_TRUE(form.txtExportFile.HasFocus());
  Press(form.cmdLoad, "There Is No Document To Load", "Load Aborted...");
  EXPECT_TRUE(form.txtImportFile.HasFocus());
  form.txtExportFile.SetText("menu.html");
  Press(form.cmdCreate, "You must supply a set of items to build the menu", "Sorry");
  EXPECT_TRUE(form.rtfEdit.HasFocus());
  Press(form.cmdSave, "There Is No Document To Save", "Save Aborted...");
  EXPECT_TRUE(form.txtImportFile.HasFocus());
}

TEST_F(MenuDialog, LoadsUpToTheLimitAndKeepsItsTextWhenItCannot) {
  files.AddFile("c:\\fits.txt", std::string(999999, 'x'));
  files.AddFile("c:\\large.txt", std::string(1000000, 'x'));
  Load("c:\\fits.txt");
  program.desktop.ExpectMsgBox("The File Is Too Large For Tagsmith", 64, "Sorry...");
  Load("c:\\large.txt");
  program.desktop.ExpectMsgBox("Error Loading Text", 64, "Sorry...");
  Load("c:\\none.txt");
  EXPECT_EQ(form.rtfEdit.Text().size(), 999999U);
}

TEST_F(MenuDialog, SavesAsTheTextCameWithOneLineMoreEachTime) {
  files.AddFile("c:\\menu.txt", "Caf\xE9");
  Load("c:\\menu.txt");
  EXPECT_EQ(form.rtfEdit.Text(), "Café");
  Save();
  Load("c:\\menu.txt");
  Save();
  form.rtfEdit.SetText("Ω");
  files.SetFault("c:\\menu.txt", MemoryFiles::Fault::kDiskFull);
  form.cmdSave.Click();
  EXPECT_EQ(files.Contents("c:\\menu.txt"), "Caf\xE9\r\n\r\n");
}

TEST_F(MenuDialog, PutsTheSupportFilesBesideThePageOnlyWhereTheyAreMissing) {
  files.AddFile("c:\\séte\\false.gif", "mine");
  form.rtfEdit.SetText("Téa|Green|green.html");
  Create("c:\\séte\\menu.html");
  EXPECT_EQ(files.Contents("c:\\séte\\menu.html"),
            std::string(kByteOrderMark) + MenuPage("Téa|Green|green.html") + "\r\n");
  EXPECT_EQ(files.Contents("c:\\séte\\false.gif"), "mine");
  EXPECT_EQ(files.Contents("c:\\séte\\list.js"), "list.js");
  files.Remove("c:\\tagsmith\\list.js");
  form.txtExportFile.SetText("bare.html");
  form.cmdCreate.Click();
  EXPECT_EQ(files.FileNames("c:\\").size(), 3U) << "what was written stays, without a word";
}

TEST_F(MenuDialog, NamesANewFileUnlessTheMenuSaysOpen) {
  form.mnuFile.Click();
  form.mnuOpen.Click();
  program.desktop.ExpectOpenFile("c:\\öld.txt");
  form.cmdBrowse.Click();
  program.desktop.ExpectSaveFile(std::nullopt);
  form.cmdBrowse2.Click();
  EXPECT_EQ(form.txtExportFile.Text(), "") << "a cancel does not repeat the other field's file";
  EXPECT_EQ(form.MyDialog.fileName, "c:\\öld.txt");
  form.mnuFile.Click();
  program.desktop.ExpectSaveFile("c:\\new.txt");
  form.cmdBrowse.Click();
  EXPECT_EQ(form.txtImportFile.Text(), "c:\\new.txt");
}

}  // namespace
}  // namespace tagsmith::generators
