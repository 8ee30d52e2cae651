#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "services/Lists.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"

namespace tagsmith::toolbars {
namespace {

/// The program with its toolbars, started.
class Toolbars : public testing::Test, protected RunningProgram {
 protected:
  Toolbars() {
    Install(app);
    Begin();
  }

  std::string AfterClick(const char* control, const std::string& before) {
    Put(before);
    Click(control);
    return Shown();
  }
};

TEST_F(Toolbars, ControlsFitTheSmallestFormSideBySideOnOneMiddleLine) {
  form.SetWidth(9500);
  std::set<std::pair<std::string, int>> names;
  std::map<std::pair<const Control*, int>, Twips> ends;  // Of each page's last control so far.
  for (const Control* control : form.Controls()) {
    const Control* strip = control->Container();
    if (strip == nullptr || strip == &form.MyOuterTab) continue;
    SCOPED_TRACE(control->Name());
    EXPECT_TRUE(names.emplace(control->Name(), control->Index()).second);
    Twips& end = ends[{strip, control->Page()}];
    EXPECT_GE(control->Left() + 15, end) << "more than the edges overlap";
    end = control->Left() + control->Width();
    EXPECT_GE(control->Top(), 600);
    EXPECT_LE(control->Top() + control->Height(), strip->Height());
    EXPECT_LE(end, 9500 - 195 - 630);
    EXPECT_NEAR(2 * control->Top() + control->Height(), 2 * 600 + 375, 1);
    // A button that took the focus would clear what the commands act on in the field beside it.
    EXPECT_EQ(control->FocusOnClick(), control->Kind() == ControlKind::kComboBox);
  }
  EXPECT_EQ(names.size(), 120U);
}

/// What a button makes of "ä«»z" and of "ä«ö»z", without the "ä" and "z" around it.
struct Case {
  const char* control;
  const char* bare;
  const char* around;
  const char* aroundWithId;
};

constexpr Case kButtons[] = {
    {"cmdItallic", "<I>«»</I>", "<I>ö</I>«»", "<I Id=\"ItallicsID\">ö</I>«»"},
    {"cmdBR", "<BR>«»", "<BR>ö«»", "<BR>ö«»"},
    {"cmdTR", "<TR>«»</TR>", "<TR>ö</TR>«»", "<TR>ö</TR>«»"},
};

TEST_F(Toolbars, ButtonsPutTheirTagsAroundTheSelection) {
  for (const Case& row : kButtons) {
    SCOPED_TRACE(row.control);
    const auto inPlace = [](const char* text) { return "ä" + std::string(text) + "z"; };
    app.gIncludeIdAttribute = false;
    EXPECT_EQ(AfterClick(row.control, "ä«»z"), inPlace(row.bare));
    EXPECT_EQ(AfterClick(row.control, "ä«ö»z"), inPlace(row.around));
    app.gIncludeIdAttribute = true;
    EXPECT_EQ(AfterClick(row.control, "ä«ö»z"), inPlace(row.aroundWithId));
  }
}

TEST_F(Toolbars, HeadingsAreInsertedByChoosingAndOnlyByChoosing) {
  auto& headings = form.Get<ComboBox>("cboHeadings");
  Put("ä«»z");
  headings.UserFocus();
  headings.UserEdit("H3");
  form.txtEdit.SetFocus();
  EXPECT_EQ(Shown(), "ä«»z");

  headings.Select(1);
  headings.Select(1);
  EXPECT_EQ(Shown(), "ä<H2><H2>«»</H2></H2>z");

  app.gIncludeIdAttribute = true;
  Put("«ö»z");
  headings.Select(5);
  EXPECT_EQ(Shown(), "<H6 Id=\"HeadingID\">ö</H6>«»z");
}

struct InsertCase {
  const char* box;
  const char* button;
  const char* entry;
  bool typed;  ///< Whether the field takes what is typed.
};

TEST_F(Toolbars, InsertButtonsReplaceTheSelectionByTheField) {
  const InsertCase kCases[] = {
      {"cboTags", "cmdInsert", "<META></META>", false},
      {"cboASP", "cmdASPDropIn", "Request.Cookies()", false},
      {"cboCSS", "cmdCSSInsert", "display: ;", true},
      {"cboDHTML", "cmdDHTMLInsert", "style.getAttribute()", true},
      {"cboHTMLClass", "cmdInsertHTMLClass", "include(\"./html_class.inc\");", true},
  };
  for (const InsertCase& row : kCases) {
    SCOPED_TRACE(row.box);
    ComboBox& box = form.Get<ComboBox>(row.box);
    int index = 0;
    while (index < box.ListCount() && box.List(index) != row.entry) ++index;
    EXPECT_EQ(box.Text(), box.List(0)) << "the first is shown, none is chosen";
    Put("ä«ö»z");
    box.Select(index);
    EXPECT_EQ(Shown(), "ä«ö»z") << "choosing alone inserts nothing";
    const std::string once = "ä" + std::string(row.entry) + "«»z";
    Click(row.button);
    EXPECT_EQ(Shown(), once);
    EXPECT_TRUE(form.txtEdit.HasFocus());

    Put("ä«»z");
    box.UserEdit("é typed");
    Click(row.button);
    EXPECT_EQ(Shown(), row.typed ? "äé typed«»z" : once);
  }
}

}  // namespace
}  // namespace tagsmith::toolbars
