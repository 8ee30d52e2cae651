#include <gtest/gtest.h>

#include "core/frmDate.h"
#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

class Editing : public ::testing::Test {
 protected:
  Editing() {
    program.Begin();
    form.txtEdit.SetText("äb cd");
    form.MarkUnchanged();
  }

  RunningProgram program;
  ScriptedDesktop& desktop = program.desktop;
  frmMain& form = program.form;
};

TEST_F(Editing, KeysGoToWhateverHasTheFocus) {
  program.Pane().Select(0, 3);
  form.MyFileList.UserFocus();
  form.mnuEditCut.Click();
  EXPECT_EQ(form.txtEdit.Text(), "äb cd") << "the menu does not move the focus";
  form.cmdCut.Click();
  EXPECT_EQ(form.txtEdit.Text(), " cd");
  EXPECT_TRUE(form.DocumentChanged());
  form.mnuEditUndo.Click();
  EXPECT_EQ(form.txtEdit.Text(), "äb cd");
  form.cmdPaste.Click();
  form.mnuEditCopy.Click();
  const std::vector<std::string> keys = {"^(x)", "^(x)", "^(z)", "^(v)", "^(c)"};
  EXPECT_EQ(desktop.sentKeys, keys);
}

TEST_F(Editing, InsertionsPassThroughTheClipboardAndLeaveItsText) {
  desktop.clipboard.text = "kept";
  program.Pane().Select(0, 3);
  form.MyDirectory.UserFocus();
  form.InsertAround("<B>", "</B>");
  EXPECT_EQ(form.txtEdit.Text(), "<B>äb</B> cd");
  EXPECT_EQ(form.txtEdit.SelStart(), std::string_view("<B>äb</B>").size());
  EXPECT_TRUE(form.txtEdit.HasFocus());
  form.InsertAround("<I>", "");
  form.InsertText("é");
  const std::vector<std::string> history = {"äb", "kept", "<I>", "kept", "é", "kept"};
  EXPECT_EQ(desktop.clipboard.history, history);

  desktop.clipboard.broken = true;
  form.InsertText("ü");
  program.Pane().Select(0, 3);
  form.InsertAround("(", ")");
  EXPECT_EQ(form.txtEdit.Text(), "(<B>)äb</B><I>éü cd");
  desktop.clipboard.broken = false;
  EXPECT_EQ(desktop.clipboard.text, "kept");
  form.mnuEditUndo.Click();
  EXPECT_EQ(form.txtEdit.Text(), "<B>äb</B><I>éü cd");
}

TEST_F(Editing, OffersTheDateInTenForms) {
  std::vector<std::string> entries;
  desktop.OnModal<frmDate>([&](frmDate& date) {
    for (int i = 0; i < date.lstDate.ListCount(); ++i) entries.push_back(date.lstDate.List(i));
    EXPECT_EQ(date.DefaultButton(), &date.cmdOK);
    date.cmdOK.Click();
  });
  form.mnuInsertDate.Click();
  const std::vector<std::string> expected = {
      "läng 4.9.2003", "medium 4.9.2003", "short 4.9.2003", "general 4.9.2003 15",
      "09/04/03",      "09/04/2003",      "09-04-03",       "09-04-2003",
      "090403",        "09042003"};
  EXPECT_EQ(entries, expected);
  EXPECT_EQ(form.txtEdit.Text(), "läng 4.9.2003äb cd") << "the first entry is selected at once";

  desktop.OnModal<frmDate>([](frmDate& date) { date.lstDate.DoubleClick(9); });
  form.mnuInsertDate.Click();
  EXPECT_EQ(form.txtEdit.Text(), "läng 4.9.200309042003äb cd");

  desktop.OnModal<frmDate>([](frmDate& date) { date.cmdCancel.Click(); });
  form.mnuInsertDate.Click();
  desktop.OnModal<frmDate>([](frmDate& date) { date.UserClose(); });
  form.mnuInsertDate.Click();
  EXPECT_EQ(form.txtEdit.Text(), "läng 4.9.200309042003äb cd");
}

TEST_F(Editing, FontIsStoredOnlyWhenItIsChosen) {
  program.Pane().Select(4, 2);
  desktop.ExpectFont(std::nullopt);
  form.mnuFonts.Click();
  EXPECT_EQ(form.txtEdit.SelStart(), 0U);
  EXPECT_EQ(form.txtEdit.SelLength(), 0U);
  EXPECT_FALSE(desktop.settings.values.contains("Fonts/Name"));
  EXPECT_TRUE(form.dlgCommonDialog.cancelError);

  const FontSpec chosen{"Café Mono", 10.5, true, false, false, true};
  desktop.ExpectFont(chosen);
  form.MyDrive.UserFocus();
  form.mnuFonts.Click();
  EXPECT_EQ(form.txtEdit.SelFont(), chosen);
  EXPECT_TRUE(form.txtEdit.HasFocus());
  EXPECT_FALSE(form.DocumentChanged()) << "a font is no edit";
  const auto& values = desktop.settings.values;
  EXPECT_EQ(values.at("Fonts/Name"), "Café Mono");
  EXPECT_EQ(values.at("Fonts/Size"), "10.5");
  EXPECT_EQ(values.at("Fonts/Bold"), "True");
  EXPECT_EQ(values.at("Fonts/Strikethru"), "True");
  EXPECT_EQ(values.at("Fonts/Underline"), "False");
}

TEST_F(Editing, CommandsOnAClosedDocumentStartANewOne) {
  form.mnuFileClose.Click();
  form.cmdCommentBlock.Click();
  EXPECT_EQ(form.txtEdit.Text(), "//" + std::string(kTemplate));
  form.SetDocumentChanged(false);
  form.mnuFileClose.Click();
  desktop.ExpectInputBox("Enter Line Number To Jump To", "Jump To Line", "", "7");
  form.mnuGotoLine.Click();
  EXPECT_EQ(form.DocumentName(), "Ready...")
      << "no such line: nothing moves, nobody gets the focus";
}

}  // namespace
}  // namespace tagsmith
