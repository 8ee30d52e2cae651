// The program put together, from its command tail to the bytes on the disk.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Program.h"
#include "core/SettingsKeys.h"

namespace tagsmith {
namespace {

TEST(WholeProgram, FindsEverythingAgainAfterARestart) {
  const UserFolder user;
  WriteBytes(user / "page one.html", "<P>Straße</P>\n");
  {
    Program program(user, {(user / "page").string(), "one.html"});
    frmMain& form = program.Form();
    EXPECT_EQ(form.DocumentName(), user.SystemPath("page one.html"));
    form.txtEdit.SetSelStart(0);
    form.Get<CommandButton>("cmdBold").Click();
    form.cmdSave.Click();
    form.MyDirectory.SetPath(user.SystemPath(""));
    EXPECT_TRUE(form.Unload());
  }
  EXPECT_EQ(ReadBytes(user / "page one.html"), "<B></B><P>Straße</P>\n\r\n");

  Program again(user);
  EXPECT_EQ(again.Form().mnuRecentlyUsed(0).Caption(), user.SystemPath("page one.html"));
  EXPECT_EQ(again.Form().MyDirectory.Path() + "\\", user.SystemPath(""));
  EXPECT_EQ(again.Form().txtEdit.SelStart(), 30U);
  EXPECT_EQ(again.Form().txtEdit.TextRange(23, 15), "<TITLE></TITLE>");
}

TEST(WholeProgram, RefusesWhatIsNoDocument) {
  const UserFolder user;
  WriteBytes(user / "large.html", std::string(1'000'000, 'x'));
  const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
      {(user / "large.html").string(), {"The File Is Too Large For Tagsmith"}},
      {"/dev/zero", {"Error Loading Text"}},
      {"/no/such/page.html", {}},
      {"-style", {}},
  };
  for (const auto& [argument, messages] : cases) {
    const Answers answers;
    Program program(user, {argument});
    EXPECT_EQ(answers.Texts(), messages) << argument;
    EXPECT_EQ(program.Form().DocumentName(), "Untitled.html") << argument;
    EXPECT_FALSE(program.Form().DocumentChanged()) << argument;
  }
}

TEST(WholeProgram, AFileOrFolderThatVanishes) {
  const UserFolder user;
  std::filesystem::create_directory(user / "site");
  WriteBytes(user / "site/a.html", "a");
  WriteBytes(user / "site/b.html", "b");
  Program program(user, {(user / "site/a.html").string()});
  frmMain& form = program.Form();
  form.MyDirectory.SetPath(user.SystemPath("site"));
  form.MyFileList.Select(1);
  std::filesystem::remove(user / "site/b.html");
  const Answers answers;

  form.MyFileList.DoubleClick(1);
  std::filesystem::remove_all(user / "site");
  form.txtEdit.SetSelText("edit");
  form.mnuFileSave.Click();  // The folder has gone: the message, then another place is asked for.
  form.mnuRefreshDriveLists.Click();
  form.mnuRecentlyUsed(1).Click();

  const std::vector<std::string> expected = {
      "Error Loading Text",
      "The file may be read-only, you may not have enough permissions, \n"
      "or the disk is full or write-protected",
      "The Specified File Cannot Be Found"};
  EXPECT_EQ(answers.Texts(), expected);
  EXPECT_TRUE(form.DocumentChanged());
  EXPECT_EQ(form.txtEdit.Text(), "aedit");
  EXPECT_EQ(form.MyDirectory.Path() + "\\", user.SystemPath(""));
}

// Root may read and write everything, so the program runs as nobody.
TEST(WholeProgram, FilesAndSettingsThatTheUserMayNotTouch) {
  const UserFolder user;
  WriteBytes(user / "fixed.html", "fixed");
  WriteBytes(user / "settings.json", "{}");
  chmod((user / "fixed.html").c_str(), 0444);
  chmod((user / "settings.json").c_str(), 0444);
  chmod((user / "").c_str(), 0555);
  const bool wasRoot = geteuid() == 0;
  ASSERT_TRUE(!wasRoot || seteuid(65534) == 0);
  {
    const Answers answers;
    Program program(user, {(user / "fixed.html").string()});
    frmMain& form = program.Form();
    form.txtEdit.SetSelText("edit");
    form.mnuFileSave.Click();
    for (const char* symbol : {"#", "%"})
      program.App().SaveSetting(settings::kBlockComment, symbol);
    ASSERT_EQ(answers.Texts().size(), 2U);
    EXPECT_TRUE(answers.Texts().back().ends_with("settings.json: Permission denied"));
    form.MarkUnchanged();
    EXPECT_TRUE(form.Unload());
  }
  ASSERT_TRUE(!wasRoot || seteuid(0) == 0);
  EXPECT_EQ(ReadBytes(user / "fixed.html"), "fixed");
  EXPECT_EQ(ReadBytes(user / "settings.json"), "{}");
  chmod((user / "").c_str(), 0755);
}

TEST(WholeProgram, AStoredFolderThatHasGone) {
  const UserFolder user;
  WriteBytes(user / "settings.json", R"({"Tagsmith":{"Settings":{"Dir":"c:\\no such folder"}}})");
  Program program(user);
  EXPECT_EQ(program.Form().MyDirectory.Path(), "c:\\");
  EXPECT_EQ(program.App().gBlockCommentSymbol, "//") << "nothing is stored";
}

}  // namespace
}  // namespace tagsmith
