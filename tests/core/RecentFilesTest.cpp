#include <gtest/gtest.h>

#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

constexpr const char* kOpening = "Save Current Before Opening Another File?";

std::string PathOf(int number) { return "c:\\dé\\" + std::to_string(number) + ".html"; }

class Recent : public testing::Test, protected RunningProgram {
 protected:
  Recent() {
    for (int i = 0; i <= 11; ++i) desktop.files.AddFile(PathOf(i), "é" + std::to_string(i));
    Begin();
  }

  std::string Tabs() const {
    std::string captions;
    for (int i = 0; i < 5; ++i) captions += form.MyTabFiles.TabCaption(i) + "|";
    return captions;
  }
};

TEST_F(Recent, KeepsTheTenNewestAndTheFiveNewestTabs) {
  for (int i = 1; i <= 11; ++i) Open(PathOf(i));
  for (int i = 0; i < 10; ++i) EXPECT_EQ(form.mnuRecentlyUsed(i).Caption(), PathOf(11 - i));
  EXPECT_EQ(Tabs(), "11.html|10.html|9.html|8.html|7.html|");

  Open(PathOf(11));
  EXPECT_EQ(form.mnuRecentlyUsed(1).Caption(), PathOf(11)) << "the list is not searched";
  Open(PathOf(8));
  EXPECT_EQ(form.MyTabFiles.Tab(), 3) << "a file with a tab selects it";
  Open(PathOf(1));
  EXPECT_EQ(form.MyTabFiles.Tab(), 3) << "a new tab does not";
  EXPECT_EQ(Tabs(), "1.html|11.html|10.html|9.html|8.html|");

  form.Unload();
  EXPECT_EQ(desktop.settings.values["Settings/RU0"], PathOf(1));
  EXPECT_EQ(desktop.settings.values["Settings/RU9"], PathOf(5));
}

TEST_F(Recent, MenuEntryLoadsItsFileWithoutMovingUp) {
  Open(PathOf(1));
  Open(PathOf(2));
  form.mnuRecentlyUsed(5).Click();
  EXPECT_EQ(form.DocumentName(), PathOf(2)) << "a free entry does nothing";

  Pane().Type("ö");
  desktop.files.Remove(PathOf(1));
  desktop.ExpectMsgBox("The Specified File Cannot Be Found", kInformationIcon,
                       "Error Loading File...");
  form.mnuRecentlyUsed(1).Click();
  EXPECT_TRUE(form.DocumentChanged());

  desktop.files.AddFile(PathOf(1), "new é");
  desktop.ExpectMsgBox(kOpening, 35, "Save on Open...", kNo);
  form.mnuRecentlyUsed(1).Click();
  EXPECT_EQ(form.txtEdit.Text(), "new é");
  EXPECT_EQ(form.MyTabFiles.Tab(), 1);
  EXPECT_EQ(form.mnuRecentlyUsed(0).Caption(), PathOf(2));

  // The save on the way moves the entries, not what was asked for.
  form.mnuFileNew.Click();
  Pane().Type("ö");
  desktop.ExpectMsgBox(kOpening, 35, "Save on Open...", kYes);
  desktop.ExpectSaveFile("c:\\dé\\saved.html");
  form.mnuRecentlyUsed(0).Click();
  EXPECT_EQ(form.DocumentName(), PathOf(2));
}

TEST_F(Recent, ClickOnATabSwitchesTheDocument) {
  desktop.files.AddFile("c:\\other\\1.html", "");
  Open(PathOf(1));
  Open("c:\\other\\1.html");
  EXPECT_EQ(Tabs(), "1.html|1.html||||") << "paths are told apart, not names";
  form.MyTabFiles.Select(4);
  EXPECT_EQ(form.DocumentName(), "c:\\other\\1.html")
      << "a free tab stays selected and does nothing";
  form.MyTabFiles.Select(1);
  EXPECT_EQ(form.DocumentName(), PathOf(1));
  EXPECT_EQ(form.txtEdit.Text(), "é1");

  Pane().Type("ö");
  desktop.ExpectMsgBox(kOpening, 35, "Save on Open...", kCancel);
  form.MyTabFiles.Select(0);
  EXPECT_EQ(form.MyTabFiles.Tab(), 0);
  EXPECT_EQ(form.DocumentName(), PathOf(1));
  EXPECT_TRUE(form.DocumentChanged());
}

}  // namespace
}  // namespace tagsmith
