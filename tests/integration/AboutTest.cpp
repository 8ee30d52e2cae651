#include <gtest/gtest.h>

#include "integration/Install.h"
#include "integration/frmAbout.h"
#include "support/RunningProgram.h"

namespace tagsmith::integration {
namespace {

TEST(About, StartsTheToolOrTellsThatThereIsNone) {
  RunningProgram program;
  ScriptedDesktop& desktop = program.desktop;
  Install(program.app);
  desktop.OnModal<frmAbout>([&](frmAbout& form) {
    const auto ask = [&](bool works) {
      const char* none = "System Information Is Unavailable At This Time";
      if (!works) desktop.ExpectMsgBox(none, kOkOnly, "Tagsmith");
      form.cmdSysInfo.Click();
    };
    ask(false);
    desktop.registry.tool = "c:\\usr\\bin\\hard info --all";
    ask(true);
    desktop.shell.failure = "Permission denied";
    ask(false);
    form.cmdOK.Click();
  });
  program.form.mnuHelpAbout.Click();
  EXPECT_EQ(desktop.shell.started, std::vector{*desktop.registry.tool});
}

}  // namespace
}  // namespace tagsmith::integration
