#include <gtest/gtest.h>

#include <algorithm>

#include "sitetools/Install.h"
#include "sitetools/frmDirectoryReplace.h"
#include "sitetools/frmRTFDialog.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"

namespace tagsmith::sitetools {
namespace {

using Strings = std::vector<std::string>;
using Fault = MemoryFiles::Fault;

constexpr const char* kSorry = "Sorry...";

/// The program with a folder of pages open in its sidebar.
class FileForms : public testing::Test {
 protected:
  FileForms() {
    toolbars::Install(program.app);
    Install(program.app);
    files.AddDirectory("c:\\séte");
    files.AddDrive('e', "empty", "c:\\media\\none");
    program.Begin();
    program.form.MyDirectory.SetPath("c:\\séte");
  }

  template <class T>
  void Open(const char* button, std::function<void(T&)> act) {
    desktop.OnModal<T>([act = std::move(act)](T& form) {
      act(form);
      form.cmdCancel.Click();
    });
    program.form.Get<CommandButton>(button).Click();
  }
  void OpenReplace(std::function<void(frmDirectoryReplace&)> act) {
    Open("cmdDirDialog", std::move(act));
  }
  void OpenRtf(std::function<void(frmRTFDialog&)> act) { Open("cmdRTFDialog", std::move(act)); }

  void Expect(std::string_view prompt, std::string_view title) {
    desktop.ExpectMsgBox(prompt, kInformationIcon, title);
  }
  /// Replaces in all files of the folder, with these messages before the last.
  void ReplaceAll(const char* find, const char* replacement, const Strings& messages = {}) {
    OpenReplace([&](frmDirectoryReplace& form) {
      for (const std::string& message : messages) Expect(message, kSorry);
      Expect("Replace Completed", "Directory Replace Dialog");
      form.txtFind.Type(find);
      form.txtReplace.Type(replacement);
      form.cmdSelectAll.Click();
      form.cmdStart.Click();
      EXPECT_EQ(form.MousePointer(), kDefaultPointer);
      EXPECT_EQ(form.lblStatus.Caption(), "Press Start To Begin...");
      EXPECT_EQ(form.MyProgress.Value(), 0);
      EXPECT_EQ(form.MyProgress.Max(), form.MyFileList.ListCount());
    });
  }
  void Put(const std::string& name, std::string_view bytes) {
    files.AddFile("c:\\séte\\" + name, bytes);
  }
  std::string Get(const std::string& name) { return files.Contents("c:\\séte\\" + name); }

  RunningProgram program;
  ScriptedDesktop& desktop = program.desktop;
  MemoryFiles& files = program.desktop.files;
};

TEST_F(FileForms, EveryFileIsReplacedInItsEncodingAndGrowsByALineBreak) {
  Put("latin.html", "<title>d\xE9j\xE0</TITLE>\n");
  Put("none.txt", "nothing\r");
  Put("one", "t");
  Put("utf.html", "Title \xC3\xA9");
  ReplaceAll("TITLE", "B");
  EXPECT_EQ(Get("latin.html"), "<B>d\xE9j\xE0</B>\n\r\n");
  EXPECT_EQ(Get("none.txt"), "nothing\r\r\n");
  EXPECT_EQ(Get("one"), "t\r\n");
  EXPECT_EQ(Get("utf.html"), "B \xC3\xA9\r\n");
  EXPECT_EQ(files.LastDurability(), Durability::kWritten);
  ReplaceAll("b", "\xCE\xA9");
  EXPECT_EQ(Get("latin.html"), "<\xCE\xA9>d\xC3\xA9j\xC3\xA0</\xCE\xA9>\n\r\n\r\n");
  files.AddFile("c:\\root.txt", "x");
  program.form.MyDirectory.SetPath("c:\\");
  ReplaceAll("x", "y");
  EXPECT_EQ(files.Contents("c:\\root.txt"), "x\r\n") << "the last character is not looked at";
}

TEST_F(FileForms, WhatCannotBeReadOrWrittenIsSkippedAndTheRunGoesOn) {
  Put("1 large", std::string(1000000, 'a'));
  Put("2 fits", std::string(999999, 'a'));
  Put("3 unreadable", "aa");
  Put("4 full", "aa");
  Put("5 locked", "aa");
  Put("6 good", "aa");
  files.SetFault("c:\\séte\\3 unreadable", Fault::kUnreadable);
  files.SetFault("c:\\séte\\4 full", Fault::kDiskFull);
  files.SetFault("c:\\séte\\5 locked", Fault::kNotWritable);
  ReplaceAll("aa", "b", {"The File Is Too Large For Tagsmith", "Error Loading Text"});
  EXPECT_EQ(Get("1 large").size(), 1000000U);
  EXPECT_EQ(Get("2 fits").size(), 500002U);
  for (const char* name : {"4 full", "5 locked"}) EXPECT_EQ(Get(name), "aa");
  EXPECT_EQ(Get("6 good"), "b\r\n");
}

TEST_F(FileForms, FilesThatVanishOrGrowBehindTheListAreTold) {
  for (const char* name : {"a", "b", "c"}) Put(name, "xx");
  OpenReplace([&](frmDirectoryReplace& form) {
    form.cmdSelectAll.Click();
    files.Remove("c:\\séte\\a");
    Put("b", std::string(2000000, 'x'));
    Expect("Error Loading Text", kSorry);
    Expect("The File Is Too Large For Tagsmith", kSorry);
    Expect("Replace Completed", form.Caption());
    form.txtFind.SetText("xx");
    form.cmdStart.Click();
    EXPECT_EQ(form.txtEdit.Text(), "") << "what is left of the last file";
  });
  EXPECT_FALSE(files.FileExists("c:\\séte\\a"));
  EXPECT_EQ(Get("c"), "\r\n");
}

TEST_F(FileForms, TheFormShowsTheFirstFileAsItIsReadAndKeepsTheLast) {
  for (const char* name : {"a", "b", "C"}) Put(name, std::string("one of ") + name);
  Put("0", std::string(1000000, 'x'));
  OpenReplace([&](frmDirectoryReplace& form) {
    Strings shown;
    form.txtEdit.onChange = [&] {
      shown.push_back(form.lblStatus.Caption() + " " + std::to_string(form.MyProgress.Value()) +
                      " " + std::to_string(form.MousePointer()) + " " + form.txtEdit.Text());
    };
    const auto run = [&](int first) {
      form.cmdSelectNone.Click();
      for (const int index : {first, 3}) form.MyFileList.SetSelected(index, true);
      if (first == 0) Expect("The File Is Too Large For Tagsmith", kSorry);
      Expect("Replace Completed", form.Caption());
      form.cmdStart.Click();
    };
    form.txtFind.SetText("one");
    form.txtReplace.SetText("two");
    run(1);
    EXPECT_EQ(shown.front(), "a 0 11 one of a");
    EXPECT_EQ(form.txtEdit.Text(), "two of C");
    EXPECT_FALSE(form.MyFileList.Selected(0) || form.MyFileList.Selected(2));
    EXPECT_TRUE(form.MyFileList.Selected(1) && form.MyFileList.Selected(3));
    shown.clear();
    run(0);
    EXPECT_EQ(shown.front(), "C 1 0 two of C\r\n") << "the pointer stays after a message";
  });
  EXPECT_EQ(Get("b"), "one of b");
  EXPECT_EQ(std::count(desktop.windowLog.begin(), desktop.windowLog.end(),
                       "RepaintNow frmDirectoryReplace"),
            2);
}

TEST_F(FileForms, NothingRunsWithoutFilesOrWithoutAText) {
  Put("a.html", "aa");
  OpenReplace([&](frmDirectoryReplace& form) {
    form.txtFind.SetText("aa");
    Expect("You Must Select At Least One File", kSorry);
    form.cmdStart.Click();
    form.txtFind.SetText("");
    form.txtReplace.SetText("x");
    form.cmdSelectAll.Click();
    Expect(" Was Not Found", kSorry);
    form.cmdStart.Click();
    Expect("Please Insert A Disk In The Drive First", kSorry);
    form.MyDrive.Select(1);
    EXPECT_EQ(form.MyFileList.Path(), "c:\\");
    form.txtEdit.SetText("the user's own");
  });
  EXPECT_EQ(Get("a.html"), "aa");
  EXPECT_EQ(program.form.MyDirectory.Path(), "c:\\séte");
}

TEST_F(FileForms, RtfFilesAreSelectedByTheirLastThreeCharactersAndNamedAfterThem) {
  for (const char* name : {"MEMO.RTF", "Ärtf", "memo.doc", "notes.txt", "notrtf", "tf"}) {
    Put(name, "");
  }
  OpenRtf([&](frmRTFDialog& form) {
    form.MyFileList.Select(2);
    form.cmdSelectAll.Click();
    Expect("The Files Have Been Converted", "RTF to HTML Conversion Dialog");
    form.cmdStart.Click();
    EXPECT_EQ(form.MousePointer(), kDefaultPointer);
    EXPECT_EQ(form.MyProgress.Max(), 4);
    EXPECT_EQ(form.MyProgress.Value(), 0);
    form.cmdSelectNone.Click();
    Expect("You Must Select At Least One RTF File", kSorry);
    form.cmdStart.Click();
  });
  Strings to;
  for (const auto& call : desktop.rtf.calls) to.push_back(call.to);
  EXPECT_EQ(to, (Strings{"c:\\séte\\MEMO.html", "c:\\séte\\notes.html", "c:\\séte\\nothtml",
                         "c:\\séte\\Ähtml"}));
  const auto& call = desktop.rtf.calls.front();
  EXPECT_EQ(call.from, "c:\\séte\\MEMO.RTF");
  EXPECT_EQ(call.texts, (Strings{"Tagsmith RTF to HTML Dialog", "0", "0", "Arial"}));
  EXPECT_TRUE(call.third == 0 && call.eighth == 0);
  EXPECT_EQ(files.Contents("c:\\séte\\nothtml"), "<I>c:\\séte\\notrtf</I>");
}

TEST_F(FileForms, AnErrorEndsTheConversionAndKeepsWhatIsDone) {
  for (const char* name : {"1.rtf", "2.rtf", "3.rtf", "éü"}) Put(name, "");
  OpenRtf([&](frmRTFDialog& form) {
    const auto fail = [&form, this] {
      Expect("The Was An Error Converting The Files", form.Caption());
      form.cmdStart.Click();
      EXPECT_EQ(form.MousePointer(), kDefaultPointer);
      EXPECT_EQ(form.MyProgress.Value(), 0);
    };
    desktop.rtf.failingCall = 2;
    form.cmdSelectAll.Click();
    fail();
    EXPECT_EQ(desktop.rtf.calls.size(), 2U);
    form.MyFileList.Select(3);
    fail();
    EXPECT_EQ(desktop.rtf.calls.size(), 2U) << "two characters are too few for an ending";
  });
  EXPECT_TRUE(files.FileExists("c:\\séte\\1.html"));
  EXPECT_FALSE(files.FileExists("c:\\séte\\2.html"));
}

}  // namespace
}  // namespace tagsmith::sitetools
