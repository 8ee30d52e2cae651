#include <gtest/gtest.h>

#include "core/frmDate.h"
#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

class Editing : public testing::Test, protected RunningProgram {
 protected:
  Editing() {
    Begin();
    form.txtEdit.SetText("äb cd");
    form.MarkUnchanged();
  }
};

TEST_F(Editing, KeysGoToWhateverHasTheFocus) {
  Pane().Select(0, 3);
  form.MyFileList.UserFocus();
  form.mnuEditCut.Click();
  EXPECT_EQ(form.txtEdit.Text(), "äb cd") << "the menu does not move the focus";
  form.cmdCut.Click();
  EXPECT_EQ(form.txtEdit.Text(), " cd");
  EXPECT_TRUE(form.DocumentChanged());
  form.mnuEditUndo.Click();
  Pane().Select(0, 2);
  form.mnuEditCopy.Click();
  form.cmdPaste.Click();
  form.cmdPaste.Click();
  EXPECT_EQ(form.txtEdit.Text(), "ääb cd");
}

TEST_F(Editing, InsertionsPassThroughTheClipboardAndLeaveItsText) {
  desktop.clipboard.text = "kept";
  Pane().Select(0, 3);
  form.MyDirectory.UserFocus();
  form.InsertAround("<B>", "</B>");
  EXPECT_TRUE(form.txtEdit.HasFocus());
  form.InsertAround("<I>", "");
  form.InsertText("é");
  const std::vector<std::string> history = {"äb", "kept", "<I>", "kept", "é", "kept"};
  EXPECT_EQ(desktop.clipboard.history, history);

  desktop.clipboard.broken = true;
  form.InsertText("ü");
  Pane().Select(0, 3);
  form.InsertAround("(", ")");
  EXPECT_EQ(form.txtEdit.Text(), "(<B>)äb</B><I>éü cd");
  desktop.clipboard.broken = false;
  EXPECT_EQ(desktop.clipboard.text, "kept");
  form.mnuEditUndo.Click();
  EXPECT_EQ(form.txtEdit.Text(), "<B>äb</B><I>éü cd");
}

TEST_F(Editing, InsertsTheDateThatIsChosenOrNone) {
  desktop.OnModal<frmDate>([](frmDate& date) { date.cmdOK.Click(); });
  form.mnuInsertDate.Click();
  EXPECT_EQ(form.txtEdit.Text(), "läng 4.9.2003äb cd") << "the first entry is selected at once";
  desktop.OnModal<frmDate>([](frmDate& date) { date.lstDate.DoubleClick(9); });
  form.mnuInsertDate.Click();
  desktop.OnModal<frmDate>([](frmDate& date) { date.cmdCancel.Click(); });
  form.mnuInsertDate.Click();
  desktop.OnModal<frmDate>([](frmDate& date) { date.UserClose(); });
  form.mnuInsertDate.Click();
  EXPECT_EQ(form.txtEdit.Text(), "läng 4.9.200309042003äb cd");
}

TEST_F(Editing, FontIsStoredOnlyWhenItIsChosen) {
  Pane().Select(4, 2);
  desktop.ExpectFont(std::nullopt);
  form.mnuFonts.Click();
  EXPECT_EQ(form.txtEdit.SelStart(), 0U);
  EXPECT_FALSE(desktop.settings.values.contains("Fonts/Name"));

  const FontSpec chosen{"Café Mono", 10.5, true, false, false, true};
  desktop.ExpectFont(chosen);
  form.MyDrive.UserFocus();
  form.mnuFonts.Click();
  EXPECT_EQ(form.txtEdit.SelFont(), chosen);
  EXPECT_TRUE(form.txtEdit.HasFocus());
  EXPECT_FALSE(form.DocumentChanged()) << "a font is no edit";
  const auto& values = desktop.settings.values;
  EXPECT_EQ(values.at("Fonts/Size"), "10.5");
  EXPECT_EQ(values.at("Fonts/Underline"), "False");
}

}  // namespace
}  // namespace tagsmith
