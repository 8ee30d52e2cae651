#include <gtest/gtest.h>

#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

TEST(Layout, FollowsTheWindowAndIsNeverSmallerThanItsLeastSize) {
  RunningProgram program;
  program.Begin();
  frmMain& form = program.form;
  EXPECT_EQ(form.txtEdit.Bounds(), (TwipsRect{2160, 1800, 7185, 4600}));

  form.UserResize(12000, 9000);
  EXPECT_EQ(form.MyOuterTab.Width(), 11805);
  EXPECT_EQ(form.MyTab.Bounds(), (TwipsRect{540, 60, 11175, 1230}));
  EXPECT_EQ(form.MyTabScript.Width(), 11175);
  EXPECT_EQ(form.MyTabFiles.Bounds(), (TwipsRect{2160, 7705, 9660, 345}));
  EXPECT_EQ(form.txtEdit.Bounds(), (TwipsRect{2160, 1800, 9660, 5890}));
  EXPECT_EQ(form.cmdHelp.Left(), 11422);
  EXPECT_EQ(form.MyFileList.Height(), 4350);
  EXPECT_EQ(form.lblResizer.Height(), 6720);

  form.UserResize(100, 100);
  EXPECT_EQ(form.Width(), 9500);
  EXPECT_EQ(form.Height(), 4600);
  EXPECT_EQ(form.MyFileList.Height(), 0) << "a negative height counts as none";
  EXPECT_EQ(form.lblResizer.Height(), 2320) << "and the steps behind it still run";

  form.UserMinimize(true);
  form.UserResize(150, 690);
  EXPECT_EQ(form.Width(), 150) << "a minimised form is left alone";
}

TEST(Layout, SplitterMovesWithinItsLimitsOnly) {
  RunningProgram program;
  program.Begin();
  frmMain& form = program.form;
  Label& bar = form.lblResizer;
  const auto dragTo = [&bar](Twips place) { bar.MouseMove(kLeftButton, place - bar.Left(), 0); };

  bar.MouseDown(kRightButton, 0, 0);
  dragTo(1000);
  EXPECT_EQ(bar.Left(), 2040) << "the right button does not hold it";

  bar.MouseDown(kLeftButton, 0, 0);
  dragTo(499);
  dragTo(form.ScaleWidth() - 499);
  EXPECT_EQ(bar.Left(), 2040);
  dragTo(form.ScaleWidth() - 500);
  EXPECT_EQ(form.txtEdit.Width(), 350);
  dragTo(500);
  EXPECT_EQ(bar.Left(), 500);
  EXPECT_EQ(form.MyDrive.Width(), 450);
  EXPECT_EQ(form.MyDirectory.Width(), 450);
  EXPECT_EQ(form.MyFileList.Width(), 450);
  EXPECT_EQ(form.txtEdit.Left(), 550);
  EXPECT_EQ(form.txtEdit.Width(), 9405 - 650);
  EXPECT_EQ(form.MyTabFiles.Left(), 550);
  EXPECT_EQ(form.MyTabFiles.Width(), 9405 - 650);

  bar.MouseUp(kRightButton, 0, 0);
  dragTo(3000);
  EXPECT_EQ(bar.Left(), 500) << "any button's release ends the drag";

  form.UserResize(12000, 9000);
  EXPECT_EQ(form.txtEdit.Width(), 9660) << "a resize takes no account of the splitter";
  EXPECT_EQ(form.txtEdit.Left(), 550);
}

TEST(Layout, ToolbarClicksLeaveTheFocusInThePane) {
  RunningProgram program;
  program.Begin();
  frmMain& form = program.form;
  for (SSTab* strip : {&form.MyOuterTab, &form.MyTab, &form.MyTabScript}) {
    form.MyFileList.UserFocus();
    strip->UserFocus();
    EXPECT_TRUE(form.txtEdit.HasFocus()) << strip->Name();
    EXPECT_TRUE(strip->FocusOnClick());
  }
  for (const Control* control : form.Controls()) {
    const bool onButtonRow = control->Top() == 1380;
    if (!onButtonRow) continue;
    EXPECT_FALSE(control->FocusOnClick()) << control->Name();
    EXPECT_NE(control->ToolTipText(), "") << control->Name();
  }
  EXPECT_FALSE(form.MyTabFiles.FocusOnClick());
  EXPECT_EQ(form.MyTab.Container(), &form.MyOuterTab);
  EXPECT_EQ(form.MyTabScript.Page(), 1);
}

}  // namespace
}  // namespace tagsmith
