#include <gtest/gtest.h>

#include "core/frmDate.h"
#include "core/frmSplash.h"
#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

TEST(FormLife, AFormStaysAliveUntilTheHandlerThatUnloadsItIsDone) {
  RunningProgram program;
  program.Begin();
  bool handlerEnded = false;
  program.desktop.OnModal<frmDate>([&](frmDate& date) {
    date.cmdOK.onClick = [&] {
      EXPECT_TRUE(date.Unload());
      date.SetCaption("still hére");
      EXPECT_EQ(program.app.platform.forms.Loaded<frmDate>(), nullptr);
      frmDate& next = program.app.Instance<frmDate>();
      EXPECT_NE(&next, &date);
      EXPECT_EQ(next.Caption(), "Insert Date");
      handlerEnded = true;
    };
    date.cmdOK.Click();
    EXPECT_EQ(date.Caption(), "still hére");
  });
  program.form.mnuInsertDate.Click();
  EXPECT_TRUE(handlerEnded);
  EXPECT_NE(program.app.platform.forms.Loaded<frmDate>(), nullptr);
}

TEST(FormLife, TheEndAsksForEditsAndTakesTheOtherFormsAlong) {
  RunningProgram program;
  program.Begin();
  program.app.Instance<frmSplash>().Show();
  program.Pane().Type("ö");
  program.desktop.ExpectMsgBox("Save Current Before Closing?", 35, "Save on Open...", kCancel);
  program.form.mnuFileExit.Click();
  EXPECT_TRUE(program.form.IsLoaded());
  EXPECT_FALSE(program.desktop.settings.values.contains("Settings/Drive"));
  EXPECT_NE(program.app.platform.forms.Loaded<frmSplash>(), nullptr);

  program.desktop.ExpectMsgBox("Save Current Before Closing?", 35, "Save on Open...", kYes);
  program.desktop.ExpectSaveFile(std::nullopt);
  program.form.UserClose();
  EXPECT_FALSE(program.form.IsLoaded());
  EXPECT_TRUE(program.desktop.settings.values.contains("Settings/RU9"));
  EXPECT_EQ(program.app.platform.forms.Loaded<frmSplash>(), nullptr);
}

TEST(FormLife, FocusIsToldOnceAndOnlyToWhatIsOnTheScreen) {
  RunningProgram program;
  frmMain& form = program.form;
  std::vector<std::string> told;
  const auto note = [&told](const char* what) {
    return [&told, what] { told.emplace_back(what); };
  };
  form.MyDrive.onGotFocus = note("drive");
  form.MyFileList.onGotFocus = note("files");
  form.MyFileList.onLostFocus = note("files lost");
  form.MyFileList.SetFocus();
  EXPECT_TRUE(told.empty()) << "the form is not shown yet";
  program.Begin();
  form.MyFileList.UserFocus();
  form.MyFileList.SetFocus();
  form.MyDrive.SetEnabled(false);
  form.MyDrive.UserFocus();
  form.txtEdit.SetFocus();
  const std::vector<std::string> expected = {"files", "files lost"};
  EXPECT_EQ(told, expected);

  auto& splash = program.app.Instance<frmSplash>();
  splash.Show();
  program.desktop.windowLog.clear();
  form.txtEdit.SetFocus();
  EXPECT_EQ(program.desktop.windowLog, std::vector<std::string>{"BringToFront frmMain"});
}

}  // namespace
}  // namespace tagsmith
