#include <gtest/gtest.h>

#include "integration/Install.h"
#include "integration/frmImageView.h"
#include "support/RunningProgram.h"

namespace tagsmith::integration {
namespace {

// The program in a folder of pictures and other files.
void View(const std::function<void(frmImageView&)>& act) {
  RunningProgram program;
  Install(program.app);
  program.desktop.AddPicture("c:\\a.GIF", 30, 20);
  program.desktop.AddPicture("c:\\sub\\g.dib", 4000, 3000);
  for (const char* name : {"c:\\c.bmp", "c:\\d.png", "c:\\e.gif.html"}) {
    program.desktop.files.AddFile(name, "");
  }
  program.desktop.OnModal<frmImageView>([&](frmImageView& form) {
    act(form);
    form.cmdOK.Click();
  });
  program.form.mnuViewPic.Click();
}

TEST(ImageView, KeepsThePictureUntilAnotherFileIsClicked) {
  View([](frmImageView& form) {
    const TwipsRect empty = form.imgView.Bounds();
    ASSERT_EQ(form.MyFileList.ListCount(), 2);
    form.MyFileList.Select(0);
    form.MyDirectory.SetPath("c:\\sub");
    EXPECT_EQ(form.imgView.Bounds(), (TwipsRect{empty.left, empty.top, 450, 300}));
    form.MyFileList.Select(0);
    EXPECT_EQ(form.imgView.Width(), 60000);
    form.MyDirectory.SetPath("c:\\");
    form.MyFileList.Select(1);
    EXPECT_EQ(form.imgView.GetPicture(), nullptr);
    EXPECT_EQ(form.imgView.Bounds(), empty);
    EXPECT_TRUE(form.lblProblem.Visible());
    form.MyFileList.Select(0);
    EXPECT_FALSE(form.lblProblem.Visible());
  });
}

TEST(ImageView, FollowsTheFormDownToItsLeastSize) {
  View([](frmImageView& form) {
    const auto resize = [&form](Twips toWidth, Twips toHeight, Twips width, Twips height) {
      form.UserResize(toWidth, toHeight);
      EXPECT_EQ(form.Width(), width);
      EXPECT_EQ(form.Height(), height);
      EXPECT_EQ(form.cmdOK.Left(), width - 1320);
      EXPECT_EQ(form.cmdOK.Top(), height - 1245);
      EXPECT_EQ(form.MyFileList.Height(), height - 2385);
    };
    resize(6599, 9000, 6600, 9000);
    resize(9000, 0, 9000, 6045);
    form.UserMinimize(true);
    form.UserResize(0, 0);
    EXPECT_EQ(form.cmdOK.Left(), 9000 - 1320);
  });
}

}  // namespace
}  // namespace tagsmith::integration
