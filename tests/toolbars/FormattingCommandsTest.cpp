#include <gtest/gtest.h>

#include <string>

#include "services/Lists.h"
#include "toolbars/ToolbarFixture.h"

namespace tagsmith::toolbars {
namespace {

class FormattingCommandsTest : public ToolbarFixture {
 protected:
  std::string AfterClick(const char* control, const std::string& before) {
    Put(before);
    form.Get<CommandButton>(control).Click();
    return Shown();
  }
};

/// What a button makes of "ä|z" and of "ä[ö]z", without the "ä" and "z" around it.
struct Case {
  const char* control;
  const char* bare;
  const char* around;
  const char* aroundWithId = nullptr;  ///< Null where the option changes nothing.
};

constexpr Case kCases[] = {
    {"cmdBold", "<B>|</B>", "<B>ö</B>|", "<B Id=\"BoldID\">ö</B>|"},
    {"cmdItallic", "<I>|</I>", "<I>ö</I>|", "<I Id=\"ItallicsID\">ö</I>|"},
    {"cmdUnderline", "<U>|</U>", "<U>ö</U>|"},
    {"cmdParagraph", "<P>|</P>", "<P>ö</P>|", "<P Id=\"ParagraphID\">ö</P>|"},
    {"cmdSub", "<SUB>|</SUB>", "<SUB>ö</SUB>|", "<SUB Id=\"SubID\">ö</SUB>|"},
    {"cmdSup", "<SUP>|</SUP>", "<SUP>ö</SUP>|", "<SUP Id=\"SupID\">ö</SUP>|"},
    {"cmdTitle", "<TITLE>|</TITLE>", "<TITLE>ö</TITLE>|"},
    {"cmdBR", "<BR>|", "<BR>ö|"},
    {"cmdHRTag", "<HR>|", "<HR>ö|"},
    {"cmdCenter", "<CENTER>|</CENTER>", "<CENTER>ö</CENTER>|"},
    {"cmdLeft", "Align=Left|", "Align=Leftö|"},
    {"cmdRight", "Align=Right|", "Align=Rightö|"},
    {"cmdPRE", "<PRE>|</PRE>", "<PRE>ö</PRE>|"},
    {"cmdEM", "<EM>|</EM>", "<EM>ö</EM>|"},
    {"cmdStrong", "<STRONG>|</STRONG>", "<STRONG>ö</STRONG>|"},
    {"cmdTextArea", "<TEXTAREA>|</TEXTAREA>", "<TEXTAREA>ö</TEXTAREA>|"},
    {"cmdFrameset", "<FRAMESET>|</FRAMESET>", "<FRAMESET>ö</FRAMESET>|"},
    {"cmdFrame", "<FRAME>|</FRAME>", "<FRAME>ö</FRAME>|"},
    {"cmdNoFrame", "<NOFRAMES>|</NOFRAMES>", "<NOFRAMES>ö</NOFRAMES>|"},
    {"cmdStyle", "<STYLE>|</STYLE>", "<STYLE>ö</STYLE>|"},
    {"cmdTableTag", "<TABLE>|</TABLE>", "<TABLE>ö</TABLE>|"},
    {"cmdCaption", "<CAPTION>|</CAPTION>", "<CAPTION>ö</CAPTION>|"},
    {"cmdTR", "<TR>|</TR>", "<TR>ö</TR>|"},
    {"cmdTH", "<TH>|</TH>", "<TH>ö</TH>|"},
    {"cmdTD", "<TD>|</TD>", "<TD>ö</TD>|"},
    {"cmdLI", "<LI>|</LI>", "<LI>ö</LI>|"},
    {"cmdDT", "<DT>|", "<DT>ö|"},
    {"cmdDD", "<DD>|", "<DD>ö|"},
};

TEST_F(FormattingCommandsTest, ButtonsPutTheirTagsAroundTheSelection) {
  for (const Case& row : kCases) {
    SCOPED_TRACE(row.control);
    const auto inPlace = [](const char* text) { return "ä" + std::string(text) + "z"; };
    application.gIncludeIdAttribute = false;
    EXPECT_EQ(AfterClick(row.control, "ä|z"), inPlace(row.bare));
    EXPECT_EQ(AfterClick(row.control, "ä[ö]z"), inPlace(row.around));
    application.gIncludeIdAttribute = true;
    EXPECT_EQ(AfterClick(row.control, "ä[ö]z"),
              inPlace(row.aroundWithId != nullptr ? row.aroundWithId : row.around));
  }
}

TEST_F(FormattingCommandsTest, ClickLeavesTheUserTypingInTheTextAndTheClipboardAsItWas) {
  desktop.clipboard.SetText("kept");
  AfterClick("cmdBold", "ä|z");
  EXPECT_TRUE(form.txtEdit.HasFocus());
  EXPECT_EQ(desktop.clipboard.GetText(), "kept");
}

TEST_F(FormattingCommandsTest, HeadingsAreInsertedByChoosingAndOnlyByChoosing) {
  auto& headings = form.Get<ComboBox>("cboHeadings");
  EXPECT_EQ(headings.Text(), "H1");
  EXPECT_EQ(headings.ListIndex(), -1);
  Put("ä|z");
  headings.UserFocus();
  headings.UserEdit("H3");
  form.txtEdit.SetFocus();
  EXPECT_EQ(Shown(), "ä|z");

  headings.Select(1);
  EXPECT_EQ(headings.Text(), "H2");
  headings.Select(1);
  EXPECT_EQ(Shown(), "ä<H2><H2>|</H2></H2>z");

  application.gIncludeIdAttribute = true;
  Put("[ö]z");
  headings.Select(5);
  EXPECT_EQ(Shown(), "<H6 Id=\"HeadingID\">ö</H6>|z");
}

}  // namespace
}  // namespace tagsmith::toolbars
