#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>

#include "services/Lists.h"
#include "toolbars/ToolbarFixture.h"

namespace tagsmith::toolbars {
namespace {

class PagesTest : public ToolbarFixture {};

/// The controls of a page as they stand: "|" before a group, "+" before what stands right beside.
std::string Row(const Form& form, const std::string& strip, int page) {
  std::string row;
  const Control* before = nullptr;
  for (const Control* control : form.Controls()) {
    if (control->Container() != form.Find(strip) || control->Page() != page) continue;
    const Twips step = before == nullptr ? 360 : control->Left() - before->Left();
    if (before != nullptr && control->Left() == before->Left() + before->Width()) {
      row += "+";
    } else {
      row += step == 360 ? " " : step == 480 ? " | " : " ?";
    }
    row += control->Name();
    before = control;
  }
  return row;
}

TEST_F(PagesTest, ControlsStandInOrderAndInTheirGroups) {
  const std::pair<std::pair<const char*, int>, const char*> kPages[] = {
      {{"MyTab", 0},
       " cmdEasyBegin cmdFastColor cmdFastAnchor cmdFastList cmdFastImage cmdFastLine cmdFastTable"
       " cmdFastMail cmdMarquee cmdComment cmdFrameDialog cmdDirDialog cmdLowerCase"
       " cmdFileManDialog cmdRTFDialog cmdJSMenu"},
      {{"MyTab", 1},
       " cmdBold cmdItallic cmdUnderline | cmdTitle cmdParagraph cmdBR | cmdLeft cmdCenter cmdRight"
       " | cmdPRE | cmdHRTag | cmdEM cmdStrong | cmdSub cmdSup | cboHeadings"},
      {{"MyTab", 2},
       " cmdFontColor cmdFontFace cmdFontUp cmdFontDown | cmdForm | cmdButton cmdTextbox"
       " cmdPassword cmdHidden cmdTextArea cmdRadio cmdCheckBox cmdSelect | cmdFrameset cmdFrame"
       " cmdNoFrame"},
      {{"MyTab", 3},
       " cmdOL cmdUL cmdDL | cmdLI | cmdDT cmdDD | cmdCaption | cmdTableTag | cmdTR cmdTH cmdTD"},
      {{"MyTab", 4}, " cboTags+cmdInsert"},
      {{"MyTab", 5}, " cboDHTML+cmdDHTMLInsert"},
      {{"MyTab", 6}, " cmdCSSLink cmdStyle cmdCSSImport cmdDIVStyle | cboCSS+cmdCSSInsert"},
      {{"MyTabScript", 0},
       " cmdJavaScript cmdJSDate cmdJSTime cmdJSFormVal cmdJSComments cmdJSStatusScroll cmdJSAd"},
      {{"MyTabScript", 1},
       " cmdCFOUTPUT cmdCFIf cmdNumSign cmdCFQuery cmdCFTable cmdCFParam cmdCFInsert cmdCFUpdate"
       " cmdAbort cmdCFReport cmdCFExit cmdCFCookie cmdCFFile"},
      {{"MyTabScript", 2}, " cmdVBScript cmdVBDate cmdVBTime cmdVBFormVal"},
      {{"MyTabScript", 3},
       " cmdPHPOpening cmdPHPPrint cmdPHPComment cmdPHPFunction cmdPHPIF cmdPHPCheckBrowser"
       " cmdPHPLM cmdCopyINC cmdPHPDataDialog | cboHTMLClass+cmdInsertHTMLClass"},
      {{"MyTabScript", 4},
       " cmdASPScript cmdASPInserts cmdASPInsertEquals cmdInclude | cboASP+cmdASPDropIn"},
      {{"MyTabScript", 5}, " cmdUD cmdUD cmdUD cmdUD cmdUD cmdUD cmdUD cmdUD cmdUD cmdUD"},
  };
  for (const auto& [page, expected] : kPages) {
    EXPECT_EQ(Row(form, page.first, page.second), expected) << page.first << page.second;
  }
}

TEST_F(PagesTest, ControlsFitTheSmallestFormAndShareAMiddleLine) {
  form.SetWidth(9500);
  std::set<std::pair<std::string, int>> names;
  for (const Control* control : form.Controls()) {
    const Control* strip = control->Container();
    if (strip == nullptr || strip == &form.MyOuterTab) continue;
    SCOPED_TRACE(control->Name());
    EXPECT_TRUE(names.emplace(control->Name(), control->Index()).second);
    EXPECT_GE(control->Top(), 600);
    EXPECT_LE(control->Top() + control->Height(), strip->Height());
    EXPECT_LE(control->Left() + control->Width(), 9500 - 195 - 630);
    EXPECT_NEAR(2 * control->Top() + control->Height(), 2 * 600 + 375, 1);
    // A button that took the focus would clear what the commands act on in the field beside it.
    EXPECT_EQ(control->FocusOnClick(), control->Kind() == ControlKind::kComboBox);
  }
  EXPECT_EQ(names.size(), 120U);
}

TEST_F(PagesTest, FacesAndToolTipsAreTheUsersOwn) {
  const auto tip = [this](const char* name) { return form.Get<Control>(name).ToolTipText(); };
  EXPECT_EQ(tip("cmdItallic"), "Itallic");
  EXPECT_EQ(tip("cmdInsertHTMLClass"), "Insert HTML_Class Statments");
  EXPECT_EQ(tip("cmdPHPOpening"), "<?  ?>");
  EXPECT_EQ(tip("cmdInsert"), "Insert Current Tag");
  EXPECT_EQ(tip("cmdDHTMLInsert"), "Insert");
  EXPECT_EQ(tip("cmdCSSInsert"), "");

  const auto& bold = form.Get<CommandButton>("cmdBold");
  EXPECT_EQ(bold.PictureName(), "cmdBold");
  EXPECT_EQ(bold.Caption(), "");
  const auto& div = form.Get<CommandButton>("cmdDIVStyle");
  EXPECT_EQ(div.PictureName(), "");
  EXPECT_EQ(div.Caption(), "Div");
  EXPECT_EQ(form.Get<CommandButton>("cmdUD", 0).Caption(), "1");
  EXPECT_EQ(form.Get<CommandButton>("cmdUD", 9).Caption(), "10");
}

}  // namespace
}  // namespace tagsmith::toolbars
