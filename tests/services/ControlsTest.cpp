// The controls by themselves: which write raises what, and what the user may do to them.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Error.h"
#include "services/FileBoxes.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/Ranges.h"
#include "services/TextBox.h"
#include "support/ScriptedDesktop.h"

namespace tagsmith {
namespace {

class Controls : public testing::Test {
 protected:
  // A handler that counts.
  std::function<void()> Count(int& counter) {
    return [&counter] { ++counter; };
  }

  ScriptedDesktop desktop;
  Form form{desktop.platform, "frmProbe"};
};

TEST_F(Controls, OptionButtonsClearEachOtherWithinTheirContainerOnly) {
  Frame left{form, "fraLeft", ""};
  Frame right{form, "fraRight", ""};
  ControlArray<OptionButton> options{form, "optKind", 4, ""};
  for (int i = 0; i < 4; ++i) options(i).SetContainer(i < 2 ? left : right);
  int clicks = 0;
  options.Bind(&OptionButton::onClick, [&clicks](int) { ++clicks; });

  options(0).SetValue(true);
  options(2).Click();
  options(1).Click();
  options(1).Click();
  EXPECT_FALSE(options(0).Value());
  EXPECT_TRUE(options(1).Value());
  EXPECT_TRUE(options(2).Value());
  EXPECT_EQ(clicks, 3);
}

TEST_F(Controls, ADisabledControlTakesNothingFromTheUser) {
  CommandButton button{form, "cmdGo"};
  CheckBox check{form, "chkOn", ""};
  TextBox text{form, "txtName"};
  int events = 0;
  button.onClick = Count(events);
  check.onClick = Count(events);
  text.onChange = Count(events);
  for (Control* control : form.Controls()) control->SetEnabled(false);
  button.Click();
  check.Click();
  text.Type("x");
  EXPECT_EQ(events, 0);
}

TEST_F(Controls, SortedItemsAndTheComboBoxField) {
  ComboBox combo{form, "cboAlign", ComboStyle::kDropDownCombo, /*sorted=*/true};
  int clicks = 0;
  combo.onClick = Count(clicks);
  combo.SetText("H1");
  combo.AddItems({"Top", "bottom", "ABSTop"});
  combo.AddItem("absMiddle");
  EXPECT_EQ(combo.List(0), "absMiddle");
  EXPECT_EQ(combo.List(2), "bottom");
  EXPECT_EQ(combo.Text(), "H1");
  EXPECT_EQ(combo.ListIndex(), -1);

  combo.SetListIndex(0);
  combo.SetListIndex(0);
  EXPECT_EQ(clicks, 1);
  combo.UserEdit("typed");
  EXPECT_EQ(combo.Text(), "typed");
  EXPECT_EQ(clicks, 1);
  combo.Select(0);
  EXPECT_EQ(combo.Text(), "absMiddle");
  EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, LimitsHold) {
  Slider slider{form, "MySlider", Orientation::kHorizontal, 1, 25};
  int moves = 0;
  slider.onChange = Count(moves);
  slider.MoveTo(99);
  slider.MoveTo(25);
  EXPECT_EQ(slider.Value(), 25);
  EXPECT_EQ(moves, 1);

  ProgressBar bar{form, "MyProgress"};
  bar.SetMax(0);
  bar.SetValue(7);
  EXPECT_EQ(bar.Max(), 1);
  EXPECT_EQ(bar.Value(), 1);
}

TEST_F(Controls, DirectoriesAboveAndBelow) {
  desktop.files.AddFile("c:\\Web\\b\\page.html", "");
  desktop.files.AddDirectory("c:\\Web\\A");
  desktop.files.AddDrive('d', "STICK", "c:\\media\\STICK");
  desktop.files.AddDirectory("c:\\media\\STICK");
  DirListBox directories{form, "MyDirectory"};
  int changes = 0;
  directories.onChange = Count(changes);

  directories.SetPath("\\web\\");
  EXPECT_EQ(directories.Path(), "c:\\Web");
  EXPECT_EQ(directories.ListCount(), 2);
  EXPECT_EQ(directories.List(0), "c:\\Web\\A");
  EXPECT_EQ(directories.List(-1), "c:\\Web");
  EXPECT_EQ(directories.List(-2), "c:\\");
  EXPECT_EQ(directories.List(-3), "");
  directories.Open(1);
  EXPECT_EQ(directories.Path(), "c:\\Web\\b");
  directories.SetPath("d: [STICK]");
  EXPECT_EQ(directories.Path(), "c:\\media\\STICK");
  EXPECT_EQ(changes, 3);

  EXPECT_THROW(directories.SetPath("c:\\none"), Error);
  EXPECT_EQ(directories.Path(), "c:\\media\\STICK");
  desktop.files.Remove("c:\\media\\STICK");
  directories.Refresh();
  EXPECT_EQ(directories.Path(), "c:\\media");
}

TEST_F(Controls, DrivesByTheirFirstTwoCharacters) {
  desktop.files.AddDrive('d', "STICK", "c:\\media\\STICK");
  DriveListBox drives{form, "MyDrive"};
  std::vector<std::string> opened;
  drives.onChange = [&] { opened.push_back(drives.Drive()); };
  drives.SetDrive("D:\\anything");
  drives.SetDrive("d:");
  EXPECT_THROW(drives.SetDrive("x:"), Error);
  const std::vector<std::string> expected = {"d: [STICK]", "d: [STICK]"};
  EXPECT_EQ(opened, expected);
}

TEST_F(Controls, FilesKeepTheirSelectionWhenTheFolderIsReadAnew) {
  for (const char* name : {"c:\\Zebra.GIF", "c:\\apple.txt", "c:\\B\xC3\xA4r.gif"}) {
    desktop.files.AddFile(name, "");
  }
  FileListBox files{form, "MyFileList", /*multiSelect=*/true};
  files.SetPath("c:\\");
  EXPECT_EQ(files.List(0), "apple.txt");
  files.SetSelected(0, true);
  files.SetSelected(2, true);
  desktop.files.AddFile("c:\\aaa.txt", "");
  files.Refresh();
  EXPECT_FALSE(files.Selected(0));
  EXPECT_TRUE(files.Selected(1));
  EXPECT_TRUE(files.Selected(3));

  files.SetPattern("*.gif;b*");
  EXPECT_EQ(files.ListCount(), 2);
  EXPECT_EQ(files.List(1), "Zebra.GIF");
}

TEST(Patterns, FollowTheUsualRules) {
  EXPECT_TRUE(MatchesPatterns("README", "*.*"));
  EXPECT_TRUE(MatchesPatterns("a.b.HTML", "*.htm;*.html"));
  EXPECT_FALSE(MatchesPatterns("a.html", "*.htm"));
  EXPECT_TRUE(MatchesPatterns("\xC3\xA4.txt", "?.txt"));
  EXPECT_FALSE(MatchesPatterns("ab.txt", "?.txt"));
  EXPECT_FALSE(MatchesPatterns("page.html", ""));
}

// A handler that lets an error out: the user sees it, and nothing else goes.
TEST_F(Controls, AnErrorEndsInItsHandler) {
  CommandButton button{form, "cmdGo"};
  button.onClick = [] { throw Error(ErrorCode::kDiskFull, "No space left on device"); };
  desktop.ExpectMsgBox("No space left on device", kOkOnly, "Tagsmith");
  button.Click();
}

}  // namespace
}  // namespace tagsmith
