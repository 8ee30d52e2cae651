#include <gtest/gtest.h>

#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

class Layout : public testing::Test, protected RunningProgram {
 protected:
  Layout() { Begin(); }
};

TEST_F(Layout, FollowsTheWindowAndIsNeverSmallerThanItsLeastSize) {
  form.UserResize(12000, 9000);
  EXPECT_EQ(form.txtEdit.Bounds(), (TwipsRect{2160, 1800, 9660, 5890}));

  form.UserResize(100, 100);
  EXPECT_EQ(form.Width(), 9500);
  EXPECT_EQ(form.Height(), 4600);
  EXPECT_EQ(form.MyFileList.Height(), 0) << "a negative height counts as none";
  EXPECT_EQ(form.lblResizer.Height(), 2320) << "and the steps behind it still run";

  form.UserMinimize(true);
  form.UserResize(150, 690);
  EXPECT_EQ(form.Width(), 150) << "a minimised form is left alone";
}

TEST_F(Layout, SplitterMovesWithinItsLimitsOnly) {
  Label& bar = form.lblResizer;
  const auto dragTo = [&bar](Twips place) { bar.MouseMove(kLeftButton, place - bar.Left(), 0); };

  bar.MouseDown(kLeftButton, 0, 0);
  dragTo(499);
  dragTo(form.ScaleWidth() - 499);
  EXPECT_EQ(bar.Left(), 2040);
  dragTo(form.ScaleWidth() - 500);
  EXPECT_EQ(form.txtEdit.Width(), 350);
  dragTo(500);
  EXPECT_EQ(bar.Left(), 500);
  EXPECT_EQ(form.txtEdit.Left(), 550);

  bar.MouseUp(kRightButton, 0, 0);
  dragTo(3000);
  EXPECT_EQ(bar.Left(), 500) << "any button's release ends the drag";
}

TEST_F(Layout, ToolbarClicksLeaveTheFocusInThePane) {
  for (SSTab* strip : {&form.MyOuterTab, &form.MyTab, &form.MyTabScript}) {
    form.MyFileList.UserFocus();
    strip->UserFocus();
    EXPECT_TRUE(form.txtEdit.HasFocus()) << strip->Name();
  }
}

}  // namespace
}  // namespace tagsmith
