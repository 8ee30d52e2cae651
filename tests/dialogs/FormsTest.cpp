#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

#include "dialogs/Install.h"
#include "dialogs/frmJumpStart.h"
#include "dialogs/frmListItems.h"
#include "dialogs/frmLists.h"
#include "dialogs/frmTables.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"
#include "toolbars/frmUD.h"

namespace tagsmith::dialogs {
namespace {

/// The program with its toolbars and dialogs, and a user before it.
struct User : RunningProgram {
  User() {
    toolbars::Install(app);
    Install(app);
  }

  /// Opens the dialog `T` with the button, and does that in it.
  template <class T>
  void Use(std::string_view button, std::function<void(T&)> act) {
    desktop.OnModal<T>(std::move(act));
    Click(button);
  }
};

class Forms : public testing::Test {
 protected:
  Forms() { user.Begin(); }

  User user;
  ScriptedDesktop& desktop = user.desktop;
};

TEST_F(Forms, CancelAndTitleBarLeaveTheTextWhateverWasHandedBackBefore) {
  const std::pair<const char*, int> kButtons[] = {
      {"cmdFastColor", -1},  {"cmdFastAnchor", -1}, {"cmdComment", -1}, {"cmdFastList", -1},
      {"cmdFastImage", -1},  {"cmdFastLine", -1},   {"cmdMarquee", -1}, {"cmdFastTable", -1},
      {"cmdFrameDialog", 3}, {"cmdEasyBegin", -1},
  };
  for (const auto& [button, choice] : kButtons) {
    for (const bool byTitleBar : {false, true}) {
      SCOPED_TRACE(button);
      user.Put("ä«ö»z");
      user.app.gResultText = user.app.gColorValue = "left over";
      user.app.gListKind = 1;
      user.Use<Form>(button, [&, index = choice](Form& form) {
        const char* const cancel = index < 0 ? "cmdCancel" : "cmdChoice";
        byTitleBar ? form.UserClose() : form.Get<CommandButton>(cancel, index).Click();
      });
      EXPECT_EQ(user.Shown(), "ä«ö»z");
      EXPECT_FALSE(user.form.DocumentChanged());
    }
  }
}

TEST_F(Forms, TheSelectionOfTheUseBeforeDoesNotComeBack) {
  const std::pair<const char*, const char*> kFields[] = {
      {"cmdFastAnchor", "txtALT"}, {"cmdComment", "txtComments"}, {"cmdMarquee", "txtAttib"}};
  for (const auto& [button, field] : kFields) {
    for (const std::string selected : {"ö\r\n ", ""}) {
      user.Put("ä«" + selected + "»z");
      user.Use<Form>(button, [&, name = field](Form& form) {
        const int index = form.Name() == "frmMarquee" ? 0 : Control::kNoIndex;
        EXPECT_EQ(form.Get<TextBox>(name, index).Text(), selected);
        form.UserClose();
      });
    }
  }
}

// --- Lists ---

TEST_F(Forms, TheCountOfTheUseBeforeStandsAfterATitleBarClose) {
  user.Use<frmLists>("cmdFastList", [](frmLists& form) {
    form.MySlider.MoveTo(2);
    form.cmdInsert.Click();
  });
  user.Use<frmLists>("cmdFastList", [](frmLists& form) {
    EXPECT_EQ(form.MySlider.Value(), 1);
    form.MySlider.MoveTo(9);
    form.cmdCancel.Click();
  });
  user.Put("«»");
  user.Use<frmListItems>("cmdUL", [](frmListItems& form) {
    form.MySlider.MoveTo(7);
    EXPECT_EQ(form.lblItems.Caption(), "7");
    form.UserClose();
  });
  EXPECT_EQ(user.Shown(), "<UL>\r\n   <LI>«»</LI>\r\n   <LI></LI>\r\n</UL>\r\n");
}

TEST_F(Forms, NumberingCanBeChosenForOrderedListsOnly) {
  user.Use<frmLists>("cmdFastList", [](frmLists& form) {
    form.optAttributes(3).Click();
    for (const int kind : {1, 0, 2}) {
      form.optList(kind).Click();
      EXPECT_EQ(form.fraOptions.Enabled(), kind == 0);
    }
    form.cmdInsert.Click();
  });
  EXPECT_EQ(user.app.gListStart, "a") << "taken whatever the kind";
  EXPECT_EQ(user.app.gListKind, 2);
  user.Use<frmLists>("cmdFastList", [](frmLists& form) { form.cmdInsert.Click(); });
  EXPECT_EQ(user.app.gListStart, "");
}

// --- Colours ---

constexpr Colour kPicked = 0x123456;

// The page's colours share one colour dialog.
TEST_F(Forms, ACancelledPickIsTheLastColourAndAFailedOneNone) {
  for (int use = 0; use < 2; ++use) {
    user.Use<frmJumpStart>("cmdEasyBegin", [&](frmJumpStart& form) {
      const auto pick = [&](int index, std::optional<Colour> picked, Colour expected) {
        desktop.ExpectColour(picked);
        form.cmdColors(index).Click();
        EXPECT_EQ(form.shpColors(index).FillColor(), expected);
      };
      form.MyDialog.cancelError = true;
      pick(1, {}, kWhite);
      form.MyDialog.cancelError = false;
      pick(3, {}, kBlack);
      pick(0, kPicked, kPicked);
      pick(4, {}, kPicked);
      EXPECT_EQ(form.picBackColor.BackColor(), kPicked);
      const Colour kExpected[] = {kWhite, kWhite, kBlack, kPicked};
      for (int i = 0; i < 4; ++i) EXPECT_EQ(form.lblText(i).ForeColor(), kExpected[i]);
      form.UserClose();
    });
  }
}

// --- Tables ---

TEST_F(Forms, ACellOfATableShowsWhatWasSavedInIt) {
  user.Use<frmTables>("cmdFastTable", [](frmTables& form) {
    form.sldRows.MoveTo(20);
    form.sldCols.MoveTo(20);
    form.MyTable.Select(1, 2);
    EXPECT_EQ(form.lblCoord.Caption(), "(2, 3)");
    form.txtCellText.UserEdit(" ü\r\n");
    form.cmdSave.Click();
    EXPECT_EQ(form.MyTable.TextAt(1, 2), " ü\r\n");
    form.MyTable.Select(19, 19);
    EXPECT_EQ(form.txtCellText.Text(), "");
    form.txtCellText.Type("last");
    form.cmdSave.Click();
    form.txtCellText.Type(" unsaved");
    form.MyTable.Select(1, 2);
    EXPECT_EQ(form.txtCellText.Text(), " ü\r\n");

    form.sldRows.MoveTo(1);
    form.sldCols.MoveTo(1);
    form.sldRows.MoveTo(20);
    form.sldCols.MoveTo(20);
    for (const auto& [row, column, text] : {std::tuple{1, 2, " ü\r\n"}, {19, 19, "last"}}) {
      EXPECT_EQ(form.MyTable.TextAt(row, column), "");
      form.MyTable.Select(row, column);
      EXPECT_EQ(form.txtCellText.Text(), text);
      EXPECT_EQ(form.MyTable.TextAt(row, column), text);
    }
    form.cmdCancel.Click();
  });
}

// --- Whole pages ---

struct PageDialog {
  const char* button;
  const char* prompt;
  std::pair<const char*, int> create;
  std::pair<const char*, int> cancel;
};

constexpr PageDialog kPageDialogs[] = {
    {"cmdFrameDialog",
     "Save Current Before Opening Another File?",
     {"cmdChoice", 1},
     {"cmdChoice", 3}},
    {"cmdEasyBegin",
     "Save Current File Before Opening Another?",
     {"cmdCreate", Control::kNoIndex},
     {"cmdCancel", Control::kNoIndex}},
};

void ExpectDocument(const frmMain& form, std::string_view name, bool changed) {
  EXPECT_EQ(form.DocumentName(), name);
  EXPECT_EQ(form.Caption(), std::string("Tagsmith - ").append(name));
  EXPECT_EQ(form.DocumentChanged(), changed);
  EXPECT_EQ(form.cmdSave.Enabled(), changed);
}

/// Edits a page, opens the dialog, answers its question, and creates the new page or cancels.
void ReplaceEditedPage(const PageDialog& dialog, int answer, bool create) {
  User user;
  user.desktop.files.AddFile("c:\\page.html", "ä");
  user.Begin("c:\\page.html");
  user.Pane().Type("x");
  user.desktop.ExpectMsgBox(dialog.prompt, kYesNo + kQuestionIcon, "Save on Open...", answer);
  user.Use<Form>(dialog.button, [&](Form& form) {
    const auto [name, index] = create ? dialog.create : dialog.cancel;
    form.Get<CommandButton>(name, index).Click();
  });
  EXPECT_EQ(user.desktop.files.Contents("c:\\page.html"), answer == kYes ? "äx\r\n" : "ä");
  create ? ExpectDocument(user.form, "Untitled.html", false)
         : ExpectDocument(user.form, "c:\\page.html", answer == kNo);
  EXPECT_EQ(user.form.txtEdit.Text() == "äx", !create);
}

TEST(PageDialogs, AskAboutEditsAndLeaveANewDocumentOrTheOld) {
  for (const PageDialog& dialog : kPageDialogs) {
    for (const int answer : {kYes, kNo}) {
      for (const bool create : {true, false}) {
        SCOPED_TRACE(testing::Message() << dialog.button << " " << answer << " " << create);
        ReplaceEditedPage(dialog, answer, create);
      }
    }
  }
}

TEST(PageDialogs, EndWhereTheEditsWereToBeSavedAndAreNot) {
  for (const PageDialog& dialog : kPageDialogs) {
    User user;
    user.Begin();
    user.Pane().Type("ä");
    const std::string before = user.form.txtEdit.Text();
    user.desktop.ExpectMsgBox(dialog.prompt, kYesNo + kQuestionIcon, "Save on Open...", kYes);
    user.desktop.ExpectSaveFile(std::nullopt);
    user.Click(dialog.button);
    EXPECT_EQ(user.form.txtEdit.Text(), before);
  }
}

// --- User buttons ---

/// The texts of a button, where some lack one of the two.
std::pair<std::string, std::string> TextsOf(int button) {
  const std::string number = std::to_string(button);
  return {button == 2 ? "" : "<ö" + number + ">\r\n ", button == 9 ? "" : " \r\n</" + number + ">"};
}

void Define(toolbars::frmUD& form) {
  for (int i = 0; i < kUserButtonCount; ++i) {
    const auto [open, close] = TextsOf(i);
    form.txtUDO(i).UserEdit(open);
    form.txtUDC(i).UserEdit(close);
  }
}

TEST(UserButtons, KeepTheirTextsBeyondARestart) {
  MemorySettings kept;
  {
    User user;
    user.Begin();
    user.desktop.OnModal<toolbars::frmUD>([](toolbars::frmUD& form) {
      Define(form);
      form.cmdSave.Click();
    });
    user.form.mnuUserButtons.Click();
    kept = user.desktop.settings;
  }
  EXPECT_EQ(kept.values.at("Settings/UDO10"), "<ö9>\r\n ");
  User user;
  user.desktop.settings = kept;
  user.Begin();
  for (int i = 0; i < kUserButtonCount; ++i) {
    const auto [open, close] = TextsOf(i);
    user.Put("ä«é»z");
    user.Click("cmdUD", i);
    EXPECT_EQ(user.Shown(), std::string("ä").append(open).append("é").append(close) + "«»z");
    EXPECT_EQ(user.form.Get<CommandButton>("cmdUD", i).ToolTipText(),
              open.empty() ? "Not Defined" : std::string(open).append(" ").append(close));
  }
}

TEST_F(Forms, UserButtonsKeepTheirTextsWhenTheirDialogIsNotSaved) {
  user.app.gUserOpenTags[4] = "<ö>\r\n";
  for (const bool byTitleBar : {false, true}) {
    desktop.OnModal<toolbars::frmUD>([&](toolbars::frmUD& form) {
      EXPECT_EQ(form.txtUDO(4).Text(), "<ö>\r\n");
      Define(form);
      byTitleBar ? form.UserClose() : form.cmdCancel.Click();
    });
    user.form.mnuUserButtons.Click();
    EXPECT_EQ(desktop.settings.values["Settings/UDO5"], "<ö>\r\n");
    EXPECT_EQ(desktop.settings.values["Settings/UDC5"], "");
  }
}

// --- Large texts ---

TEST_F(Forms, LargeTextsGoThroughAFormWhole) {
  std::string lines;
  for (int i = 0; i < 100'000; ++i) lines += "<é>\r\n";
  const std::string url(100'000, '"');
  user.Put("«" + lines + "»");
  user.Use<Form>("cmdFastAnchor", [&](Form& form) {
    form.Get<TextBox>("txtURL").UserEdit(url);
    form.Get<CommandButton>("cmdInsert").Click();
  });
  EXPECT_TRUE(user.form.txtEdit.Text() == "<A HREF=\"" + url + "\">" + lines + "</A>");
}

}  // namespace
}  // namespace tagsmith::dialogs
