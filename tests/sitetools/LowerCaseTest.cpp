// Names in lower case: the walk on files in memory and on real ones, and the form around it.

#include <gtest/gtest.h>

#include <new>

#include "services/host/HostFiles.h"
#include "services/host/TemporaryFolder.h"
#include "services/host/TestProcess.h"
#include "sitetools/Install.h"
#include "sitetools/LowerCaseWalk.h"
#include "sitetools/frmLowerCase.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"

namespace tagsmith::sitetools {
namespace {

namespace fs = std::filesystem;
using namespace test;

constexpr const char* kTitle = "Convert To Lower Case Dialog";

const auto kGoOn = [](std::string_view /*path*/) { return true; };

// --- The walk ---

class NotedRenames : public MemoryFiles {
 public:
  std::vector<std::string> log;

  std::vector<std::string> RenameEntries(std::string_view directory,
                                         std::span<const NewName> names) override {
    for (const NewName& name : names) log.push_back(name.from + " -> " + name.to);
    return MemoryFiles::RenameEntries(directory, names);
  }
};

TEST(LowerCaseWalk, RenamesADirectoryBeforeWhatIsInItAndFilesAfterDirectories) {
  NotedRenames files;
  for (const char* name : {"B.TXT", "a.TXT", "c.txt", "Éa\\Index.HTML", "ZOO\\Deep\\X.GIF",
                           "ZOO\\y\\Z.GIF", "ZOO\\W.GIF", ".Hidden\\X"}) {
    files.AddFile(std::string("c:\\Site\\") + name, "");
  }
  const auto note = [&files](std::string_view path) {
    files.log.emplace_back(path);
    return true;
  };
  EXPECT_EQ(LowerCaseBelow(files, "c:\\Site", note).count, 0U);
  const std::vector<std::string> expected = {"c:\\Site",         "Éa -> éa",
                                             "c:\\Site\\éa",     "Index.HTML -> index.html",
                                             "ZOO -> zoo",       "c:\\Site\\zoo",
                                             "c:\\Site\\zoo\\y", "Z.GIF -> z.gif",
                                             "Deep -> deep",     "c:\\Site\\zoo\\deep",
                                             "X.GIF -> x.gif",   "W.GIF -> w.gif",
                                             "a.TXT -> a.txt",   "B.TXT -> b.txt"};
  EXPECT_EQ(files.log, expected);

  files.log.clear();
  LowerCaseBelow(files, "c:\\", note);
  EXPECT_EQ(files.log,
            (std::vector<std::string>{"c:\\", "Site -> site", "c:\\site", "c:\\site\\éa",
                                      "c:\\site\\zoo", "c:\\site\\zoo\\y", "c:\\site\\zoo\\deep"}));
}

TEST(LowerCaseWalk, TakesFilesAsTheyAreWhenTheSubdirectoriesAreDone) {
  MemoryFiles files;
  files.AddFile("c:\\Site\\Gone.txt", "");
  files.AddDirectory("c:\\Site\\sub");
  LowerCaseBelow(files, "c:\\Site", [&files](std::string_view path) {
    if (path.ends_with("sub")) {
      files.Remove("c:\\Site\\Gone.txt");
      files.AddFile("c:\\Site\\New.txt", "");
    }
    return true;
  });
  EXPECT_EQ(files.FileNames("c:\\Site"), std::vector<std::string>{"new.txt"});
}

TEST(LowerCaseWalk, LeavesTakenNamesAndCountsThemAll) {
  MemoryFiles files;
  for (const char* name : {"FOO", "Foo", "Sub\\A", "sub\\B", "Sub\\a"}) {
    files.AddFile(std::string("c:\\Site\\") + name, name);
  }
  const NamesLeft left = LowerCaseBelow(files, "c:\\Site", kGoOn);
  EXPECT_EQ(left.count, 3U);
  EXPECT_EQ(left.paths,
            (std::vector<std::string>{"c:\\Site\\Sub", "c:\\Site\\Sub\\A", "c:\\Site\\Foo"}));
  EXPECT_EQ(files.Contents("c:\\Site\\foo"), "FOO");
  EXPECT_EQ(files.Contents("c:\\Site\\sub\\b"), "sub\\B");
}

class LowerCaseOnDisk : public ::testing::Test {
 protected:
  NamesLeft Walk() { return LowerCaseBelow(files_, folder_.System("Site"), kGoOn); }

  TemporaryFolder folder_;
  HostFiles files_;
};

TEST_F(LowerCaseOnDisk, RenamesLinksAndNeverWalksThroughThem) {
  fs::create_directories(folder_ / "Site/Sub");
  fs::create_directories(folder_ / "Other");
  PutFile(folder_ / "Other/Kept", "");
  fs::create_directory_symlink("../Other", folder_ / "Site/Link");
  fs::create_directory_symlink("../../Site", folder_ / "Site/Sub/LOOP");
  fs::create_symlink("nowhere", folder_ / "Site/Dangling");
  EXPECT_EQ(Walk().count, 0U);
  EXPECT_EQ(NamesIn(folder_ / "Site"), (Names{"dangling", "link", "sub"}));
  EXPECT_EQ(NamesIn(folder_ / "Site/sub"), Names{"loop"});
  EXPECT_EQ(NamesIn(folder_ / "Other"), Names{"Kept"});
}

TEST_F(LowerCaseOnDisk, KeepsEveryByteThatIsNoLetter) {
  const std::string inner = "Site/A\\B:C\xFF/";
  fs::create_directories(folder_ / inner);
  for (const char* name : {"ÄÖ.HTML", "Σς", "\xC3", "A\xFF\uF87F", "\uFEFFX", "LINE\nEND ", ".X"}) {
    PutFile(folder_ / (inner + name), "");
  }
  EXPECT_EQ(Walk().count, 0U);
  EXPECT_EQ(NamesIn(folder_ / "Site/a\\b:c\xFF"),
            (Names{"äö.html", "σς", "\xC3", "a\xFF\uF87F", "\uFEFFx", "line\nend ", ".X"}));
}

TEST_F(LowerCaseOnDisk, EndsAtWhatCannotBeReadAndKeepsWhatIsDone) {
  for (const char* name : {"Site/C", "Site/B", "Site/A"}) fs::create_directories(folder_ / name);
  PutFile(folder_ / "Site/C/X", "");
  for (const char* name : {"Site", "Site/C"}) {
    fs::permissions(folder_ / name, fs::perms::all);
  }
  fs::permissions(folder_ / "Site/B", fs::perms::none);
  const bool possible = InProcess([this] {
    BecomeOrdinaryUser();
    EXPECT_EQ(CodeThrownBy([this] { Walk(); }), ErrorCode::kPermissionDenied);
  });
  fs::permissions(folder_ / (fs::exists(folder_ / "Site/b") ? "Site/b" : "Site/B"), fs::perms::all);
  if (!possible) GTEST_SKIP() << "the user cannot be changed";
  EXPECT_EQ(NamesIn(folder_ / "Site/c"), Names{"x"});
  EXPECT_TRUE(fs::exists(folder_ / "Site/A"));
}

// --- The form ---

class LowerCaseForm : public ::testing::Test {
 protected:
  LowerCaseForm() {
    toolbars::Install(program.app);
    Install(program.app);
    program.Begin();
    files.AddFile("c:\\Site\\Images\\Index.HTML", "");
    files.AddFile("c:\\Site\\Old\\Page.HTML", "");
    files.AddFile("c:\\Site\\Top.HTML", "");
    program.form.MyDirectory.SetPath("c:\\Site");
    program.form.Get<CommandButton>("cmdLowerCase").Click();
  }

  frmLowerCase& form() const { return *program.desktop.platform.forms.Loaded<frmLowerCase>(); }
  bool IsOpen() const { return program.desktop.platform.forms.Loaded<frmLowerCase>() != nullptr; }

  RunningProgram program;
  ScriptedDesktop& desktop = program.desktop;
  MemoryFiles& files = program.desktop.files;
};

TEST_F(LowerCaseForm, OpensAHighlightedDirectoryFirst) {
  form().MyDirectory.Select(0);
  form().cmdStart.Click();
  EXPECT_EQ(form().MyDirectory.Path(), "c:\\Site\\Images");
  form().cmdStart.Click();
  EXPECT_EQ(form().MyFileList.List(0), "index.html");
  files.Contents("c:\\Site\\Top.HTML");
}

TEST_F(LowerCaseForm, KeepsItsPlaceWhateverIsClickedMeanwhile) {
  files.AddDrive('e', "STICK", "c:\\media\\STICK");
  files.AddDirectory("c:\\media\\STICK");
  form().MyDrive.Refresh();
  int entered = 0;
  desktop.onDoEvents = [&] {
    ++entered;
    form().cmdStart.Click();
    form().MyDrive.Select(1);
    form().MyDirectory.Open(-2);
    form().MyDirectory.Select(0);
  };
  form().cmdStart.Click();
  EXPECT_EQ(entered, 3);
  EXPECT_EQ(form().MyDirectory.Path(), "c:\\Site");
  EXPECT_EQ(form().MyDirectory.List(1), "c:\\Site\\old");
  EXPECT_EQ(form().MyFileList.List(0), "top.html");
  EXPECT_EQ(form().MyDrive.Drive(), "c: [root]");

  form().MyDrive.Select(1);
  EXPECT_EQ(form().MyDirectory.Path(), "c:\\media\\STICK");
}

TEST_F(LowerCaseForm, EndsAtTheNextDirectoryWhenItIsClosed) {
  int entered = 0;
  desktop.onDoEvents = [&] {
    if (++entered == 2) form().cmdCancel.Click();
  };
  form().cmdStart.Click();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(entered, 2);
  files.Contents("c:\\Site\\old\\Page.HTML");
  files.Contents("c:\\Site\\Images\\Index.HTML");
}

TEST_F(LowerCaseForm, TellsOnceWhichNamesAreTaken) {
  std::string prompt =
      "These keep their names, because another one has the lowercase name already:\r\n";
  for (char letter = 'A'; letter <= 'L'; ++letter) {
    const std::string name = {letter, 'B'};
    files.AddFile("c:\\Site\\" + name, "");
    files.AddFile("c:\\Site\\" + std::string{static_cast<char>(letter - 'A' + 'a'), 'b'}, "");
    if (letter <= 'J') prompt += "\r\nc:\\Site\\" + name;
  }
  desktop.ExpectMsgBox(prompt + "\r\n... and 2 more", kInformationIcon, kTitle);
  form().cmdStart.Click();
  EXPECT_TRUE(IsOpen());
}

TEST_F(LowerCaseForm, EndsTheProgramOnAnError) {
  files.SetFault("c:\\Site\\Old\\Page.HTML", MemoryFiles::Fault::kNotWritable);
  desktop.ExpectMsgBox("Permission denied: c:\\Site\\old\\Page.HTML", kOkOnly, kApplicationTitle);
  form().cmdStart.Click();
  EXPECT_TRUE(desktop.programEnded);
}

TEST_F(LowerCaseForm, StaysWhenMemoryIsShort) {
  const auto start = [this](std::function<void()> fault) {
    desktop.onDoEvents = std::move(fault);
    desktop.ExpectMsgBox("You've filled the list box. Abandoning search...", kOkOnly,
                         kApplicationTitle);
    form().cmdStart.Click();
  };
  start([] { throw std::bad_alloc(); });
  start([] { throw Error(ErrorCode::kOutOfMemory, "Cannot allocate memory"); });
  EXPECT_FALSE(desktop.programEnded);
  desktop.onDoEvents = {};
  form().cmdStart.Click();
  EXPECT_EQ(form().MyFileList.List(0), "top.html");
}

}  // namespace
}  // namespace tagsmith::sitetools
