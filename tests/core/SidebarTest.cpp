#include <gtest/gtest.h>

#include "core/Sidebar.h"
#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

class SidebarLists : public testing::Test, protected RunningProgram {
 protected:
  SidebarLists() {
    desktop.files.AddFile("c:\\site\\Föto.GIF", "");
    desktop.files.AddFile("c:\\site\\page.html", "é");
    desktop.files.AddDirectory("c:\\media\\Stück\\sub");
    desktop.files.AddDrive('d', "Stück", "c:\\media\\Stück");
    desktop.files.AddDrive('e', "empty", "c:\\media\\none");
  }
};

TEST_F(SidebarLists, RestoreWhatWasStoredAndStoreItAtTheEnd) {
  desktop.settings.values = {{"Settings/Drive", "d: [Stück]"},
                             {"Settings/Dir", "c:\\media\\Stück\\sub"}};
  Begin();
  EXPECT_EQ(form.MyDrive.Drive(), "d: [Stück]");
  EXPECT_EQ(form.MyDirectory.Path(), "c:\\media\\Stück\\sub");

  form.MyDrive.Select(0);
  EXPECT_EQ(form.MyFileList.Path(), "c:\\");
  form.MyDirectory.SetPath("site");
  EXPECT_TRUE(form.Unload());
  EXPECT_EQ(desktop.settings.values["Settings/Drive"], "c: [root]");
  EXPECT_EQ(desktop.settings.values["Settings/Dir"], "c:\\site");
}

TEST_F(SidebarLists, FallBackToTheRootWithoutAWordWhereTheDriveHasGone) {
  desktop.settings.values = {{"Settings/Drive", "x:"}, {"Settings/Dir", "c:\\site"}};
  Begin();
  EXPECT_EQ(form.MyDrive.Drive(), "c: [root]");
  EXPECT_EQ(form.MyDirectory.Path(), "c:\\");
}

TEST_F(SidebarLists, DriveWithoutADiskLeadsBackToTheFirst) {
  Begin();
  form.mnuRefreshDriveLists.Click();
  desktop.ExpectMsgBox("Please Insert A Disk In The Drive First", kInformationIcon, "Sorry...");
  form.MyDrive.Select(2);
  EXPECT_EQ(form.MyDrive.Drive(), "c: [root]");
  EXPECT_EQ(form.MyDirectory.Path(), "c:\\");
}

TEST_F(SidebarLists, FollowAFileAndStayWhereItsFolderCannotBeShown) {
  Begin();
  form.Lists().SyncFileBoxes("c:\\site\\page.html");
  EXPECT_EQ(form.MyFileList.List(0), "Föto.GIF");
  for (const char* path : {"x:\\site\\page.html", " c:\\site\\page.html", "c:\\gone\\page.html",
                           "page.html", "e:\\page.html", ""}) {
    form.Lists().SyncFileBoxes(path);
    EXPECT_EQ(form.MyDirectory.Path(), "c:\\site") << path;
  }
  form.Lists().SyncFileBoxes("d:\\sub\\x.html");
  EXPECT_EQ(form.MyDirectory.Path(), "c:\\media\\Stück\\sub");
}

TEST_F(SidebarLists, DoubleClickOpensWhateverIsThere) {
  Begin();
  form.MyDirectory.SetPath("c:\\site");
  form.MyFileList.Select(1);
  Pane().Type("ö");
  desktop.ExpectMsgBox("Save Current Before Opening Another File?", 35, "Save on Open...", kCancel);
  form.MyFileList.DoubleClick(1);
  EXPECT_TRUE(form.DocumentChanged());

  // The file that was asked for is loaded, though the save on the way moves the lists.
  desktop.ExpectMsgBox("Save Current Before Opening Another File?", 35, "Save on Open...", kYes);
  desktop.ExpectSaveFile("c:\\saved.html");
  form.MyFileList.DoubleClick(1);
  EXPECT_EQ(form.Caption(), "Tagsmith - c:\\site\\page.html");
  EXPECT_EQ(form.txtEdit.Text(), "é");
}

}  // namespace
}  // namespace tagsmith
