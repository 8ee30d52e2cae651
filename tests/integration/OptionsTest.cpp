#include <gtest/gtest.h>

#include "integration/Install.h"
#include "integration/frmMainOptions.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"

namespace tagsmith::integration {
namespace {

constexpr const char* kTitle = "Register Tagsmith...";

class Options : public testing::Test {
 protected:
  Options() {
    toolbars::Install(program.app);
    Install(program.app);
    program.Begin();
  }

  void Open(std::function<void(frmMainOptions&)> act) {
    desktop.OnModal<frmMainOptions>(std::move(act));
    program.form.mnuOptions.Click();
  }
  RunningProgram program;
  ScriptedDesktop& desktop = program.desktop;
};

TEST_F(Options, OkSavesAndTakesEffectAtOnce) {
  Open([](frmMainOptions& form) {
    form.chkID.Click();
    form.txtCommentSymbol.UserEdit("REM é ");
    form.cmdOK.Click();
  });
  program.form.Get<CommandButton>("cmdBold").Click();
  EXPECT_NE(program.Pane().Text().find("<B Id=\"BoldID\">"), std::string::npos);

  Open([](frmMainOptions& form) {
    EXPECT_EQ(form.txtCommentSymbol.Text(), "REM é ");
    form.chkID.Click();
    form.chkHeightWidth.Click();
    form.txtCommentSymbol.UserEdit("");
    form.cmdOK.Click();
  });
  auto& stored = desktop.settings.values;
  EXPECT_EQ(stored["Settings/IDAttribute"] + stored["Settings/HeightWidth"] +
                stored["Settings/BlockComment"],
            "FalseTrue");
  EXPECT_TRUE(program.app.gIncludeHeightWidth && !program.app.gIncludeIdAttribute);
}

TEST_F(Options, TheClosingBoxSavesNothingAndOnlyTrueIsSet) {
  desktop.settings.values = {{"Settings/IDAttribute", "True"}, {"Settings/HeightWidth", "true"}};
  const auto before = desktop.settings.values;
  Open([](frmMainOptions& form) {
    EXPECT_EQ(form.chkID.Value(), 1);
    EXPECT_EQ(form.chkHeightWidth.Value(), 0);
    form.txtCommentSymbol.UserEdit("#");
    form.chkID.Click();
    form.UserClose();
  });
  EXPECT_EQ(desktop.settings.values, before);
  EXPECT_EQ(program.app.gBlockCommentSymbol, "//");
}

TEST_F(Options, RegisteringSaysWhatBecameOfIt) {
  Open([this](frmMainOptions& form) {
    desktop.ExpectMsgBox("Tagsmith has been registered with HTML files!", kInformationIcon, kTitle);
    desktop.ExpectMsgBox("/home: Read-only file system", kInformationIcon, kTitle);
    form.cmdRegister.Click();
    desktop.registry.failure = "/home: Read-only file system";
    form.cmdRegister.Click();
    form.UserClose();
  });
  EXPECT_EQ(desktop.registry.offered, (std::vector<std::string>{"text/html: Edit with Tagsmith"}));
}

}  // namespace
}  // namespace tagsmith::integration
