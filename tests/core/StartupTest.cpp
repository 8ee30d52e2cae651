#include <gtest/gtest.h>

#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

TEST(Startup, RunsItsStepsInOrderAndEndsInThePane) {
  RunningProgram program;
  frmMain& form = program.form;
  ScriptedDesktop& desktop = program.desktop;
  desktop.settings.values["Settings/BlockComment"] = "é";
  const auto step = [&](const char* name) {
    return [&, name] {
      desktop.windowLog.emplace_back(name);
      EXPECT_EQ(program.app.gBlockCommentSymbol, "é");
      EXPECT_EQ(form.txtEdit.Text(), "");
    };
  };
  form.startup.loadUserButtons = step("load user buttons");
  form.startup.assignUserToolTips = step("tool tips");
  form.startup.fillCatalogs = step("catalogs");
  program.Begin();

  const std::vector<std::string> expected = {
      "Show frmSplash", "RepaintNow frmSplash", "load user buttons", "tool tips",
      "catalogs",       "Show frmMain",         "Close frmSplash",   "Show frmMain"};
  EXPECT_EQ(desktop.windowLog, expected);
  EXPECT_EQ(form.MyTabFiles.TabCaption(0), "");
  EXPECT_TRUE(form.txtEdit.HasFocus());
}

TEST(Startup, TakesTheFontAsStored) {
  RunningProgram program;
  program.desktop.settings.values = {{"Fonts/Name", "Café"},    {"Fonts/Size", "9.5"},
                                     {"Fonts/Bold", "True"},    {"Fonts/Italic", "true"},
                                     {"Fonts/Underline", "-1"}, {"Fonts/Strikethru", "nonsense"}};
  program.Begin();
  const FontSpec stored{"Café", 9.5, true, true, true, false};
  EXPECT_EQ(program.form.txtEdit.SelFont(), stored);
}

TEST(Startup, SurvivesWithoutTemplate) {
  RunningProgram program;
  program.desktop.files.Remove("c:\\tagsmith\\Template.html");
  program.desktop.ExpectMsgBox("Error Loading Text", kInformationIcon, "Sorry...");
  program.Begin();
  EXPECT_EQ(program.form.Caption(), "Tagsmith - Untitled.html");
  EXPECT_EQ(program.form.txtEdit.Text(), "");
}

TEST(Startup, OpensTheTailAsOnePathWithItsBlanksOff) {
  RunningProgram program;
  auto& desktop = program.desktop;
  desktop.files.AddFile("c:\\my pages\\é.html", "text");
  desktop.files.AddDirectory("c:\\stored");
  desktop.settings.values = {{"Settings/RU0", "c:\\old.html"},
                             {"Settings/RU9", "c:\\oldest.html"},
                             {"Settings/Drive", "C:\\what follows is no matter"},
                             {"Settings/Dir", "c:\\stored"}};
  program.Begin(" c:\\my pages\\é.html ");
  frmMain& form = program.form;
  EXPECT_EQ(form.Caption(), "Tagsmith - c:\\my pages\\é.html");
  EXPECT_EQ(form.MyDirectory.Path(), "c:\\stored") << "the stored place overrules the file's";
  EXPECT_EQ(form.MyTabFiles.TabCaption(0), "é.html ") << "the tab has the tail as it came";
  EXPECT_EQ(form.mnuRecentlyUsed(0).Caption(), " c:\\my pages\\é.html ");
  EXPECT_EQ(form.mnuRecentlyUsed(1).Caption(), "c:\\old.html");
  EXPECT_EQ(form.mnuRecentlyUsed(9).Caption(), "") << "the oldest falls off the end";
}

}  // namespace
}  // namespace tagsmith
