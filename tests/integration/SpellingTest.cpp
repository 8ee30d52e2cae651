// The spelling command on the scripted desktop: the user works in the pane and in the dialog.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "integration/SpellCheck.h"
#include "integration/SpellingCommand.h"
#include "integration/frmSpelling.h"
#include "services/Dialogs.h"
#include "support/RunningProgram.h"

namespace tagsmith::integration {
namespace {

class Spelling : public testing::Test {
 protected:
  Spelling() {
    BindSpelling(user.app);
    user.Begin();
    user.desktop.dictionary.words = {"the", "a", "is", "Ärger", "cafés"};
    user.desktop.dictionary.suggestions = {{"teh", {"the", "tea"}}, {"caf\u00E9", {"cafés"}}};
  }

  /// Checks `marked` with F7; `act` is the user at the dialog.
  void Check(std::string_view marked, std::function<void(frmSpelling&)> act) {
    user.Put(marked);
    user.desktop.OnModal<frmSpelling>(std::move(act));
    user.form.mnuCheckSpelling.Click();
    EXPECT_EQ(user.desktop.platform.forms.Loaded<frmSpelling>(), nullptr);
  }

  RunningProgram user;
};

TEST_F(Spelling, ATextWithoutDoubtfulWordsIsLeftAlone) {
  user.Put("<p>the «a» is</p>");
  user.form.cmdSpellCheck.Click();
  EXPECT_EQ(user.Shown(), "<p>the «a» is</p>");
  EXPECT_FALSE(user.form.DocumentChanged());

  user.form.mnuFileClose.Click();
  user.desktop.dictionary.failure = "No dictionary";  // Nothing is asked of it.
  user.form.mnuCheckSpelling.Click();
  EXPECT_FALSE(user.form.HasDocument());
}

TEST_F(Spelling, EachWordIsShownInThePaneAndInTheDialog) {
  Check("«»Ärger teh is\r\n<b>xyz</b> teh", [this](frmSpelling& form) {
    EXPECT_EQ(user.Shown(), "Ärger «teh» is\r\n<b>xyz</b> teh");
    EXPECT_EQ(form.lblLine.Caption(), "Ärger teh is");
    EXPECT_EQ(form.txtChange.Text(), "the");
    form.lstSuggestions.Select(1);
    EXPECT_EQ(form.txtChange.Text(), "tea");
    form.lstSuggestions.DoubleClick(0);

    EXPECT_EQ(user.Shown(), "Ärger the is\r\n<b>«xyz»</b> teh");
    EXPECT_EQ(user.Pane().shownSelection, 18U);
    EXPECT_EQ(form.lstSuggestions.List(0), "(No Suggestions)");
    form.lstSuggestions.DoubleClick(0);
    EXPECT_EQ(form.txtChange.Text(), "xyz");
    form.cmdIgnore.Click();

    EXPECT_EQ(user.Shown(), "Ärger the is\r\n<b>xyz</b> «teh»");
    form.txtChange.SetText("Übung");
    form.DefaultButton()->Click();
  });
  EXPECT_EQ(user.Shown(), "Ärger the is\r\n<b>xyz</b> «Übung»");
  user.Pane().Undo();
  EXPECT_EQ(user.form.txtEdit.Text(), "Ärger teh is\r\n<b>xyz</b> teh");
}

TEST_F(Spelling, ChangeAllAndIgnoreAllHoldToTheEnd) {
  Check("«»teh ab teh ab xyz teh ab", [this](frmSpelling& form) {
    form.cmdIgnore.Click();
    form.cmdIgnoreAll.Click();
    EXPECT_EQ(user.Shown(), "teh ab «teh» ab xyz teh ab");
    form.cmdChangeAll.Click();
    EXPECT_EQ(user.Shown(), "teh ab the ab «xyz» teh ab");
    form.txtChange.SetText("");
    form.cmdChangeAll.Click();
  });
  EXPECT_EQ(user.Shown(), "teh ab the ab «» the ab");
  // The next check knows nothing of it.
  Check("«»ab", [](frmSpelling& form) { form.cmdCancel.Click(); });
}

TEST_F(Spelling, ACancelledCheckKeepsWhatWasDone) {
  Check("«»teh xyz teh", [](frmSpelling& form) {
    form.cmdChangeAll.Click();
    form.UserClose();
  });
  EXPECT_EQ(user.Shown(), "the «xyz» the");
  Check("«»xyz", [](frmSpelling& form) { form.cmdCancel.Click(); });
  EXPECT_EQ(user.Shown(), "«xyz»");
  EXPECT_FALSE(user.form.DocumentChanged());
}

TEST_F(Spelling, AWordWithReferencesIsReplacedByOneWithReferences) {
  Check("«» Ä <i alt='caf&eacute;'>\n", [this](frmSpelling& form) {
    form.cmdIgnore.Click();
    EXPECT_EQ(user.Shown(), " Ä <i alt='«caf&eacute;»'>\n");
    EXPECT_EQ(form.txtChange.Text(), "cafés");
    form.txtChange.SetText("l'été");
    form.cmdChange.Click();
  });
  EXPECT_EQ(user.Shown(), " Ä <i alt='«l&#39;&eacute;t&eacute;»'>\n");
}

TEST_F(Spelling, ALearntWordIsRightFromThenOn) {
  Check("«»teh Teh teh", [this](frmSpelling& form) {
    form.cmdIgnore.Click();
    user.desktop.dictionary.failure = "Disk full";
    user.desktop.ExpectMsgBox("Disk full", kOkOnly, "Tagsmith");  // Of the word list.
    user.desktop.ExpectMsgBox("Disk full", kOkOnly, "Tagsmith");  // "teh" is looked up again.
    form.cmdAdd.Click();
  });
  EXPECT_EQ(user.desktop.dictionary.learnt, std::vector<std::string>{"Teh"});
  user.desktop.dictionary.failure.clear();
  Check("«»xyz Teh xyz", [](frmSpelling& form) { form.cmdAdd.Click(); });
  EXPECT_FALSE(user.form.DocumentChanged());
}

TEST_F(Spelling, AMissingDictionaryIsToldOnce) {
  user.Put("«»teh xyz");
  user.desktop.dictionary.failure = "No dictionary for English";
  user.desktop.ExpectMsgBox("No dictionary for English", kOkOnly, "Tagsmith");
  user.form.mnuCheckSpelling.Click();
  EXPECT_EQ(user.Shown(), "«»teh xyz");
}

TEST_F(Spelling, OwnWordsThatCannotBeReadDoNotEndTheCheck) {
  user.desktop.dictionary.ownWordsError = "words.txt: Is a directory";
  user.desktop.ExpectMsgBox("words.txt: Is a directory", kOkOnly, "Tagsmith");
  Check("«»teh xyz", [](frmSpelling& form) {
    EXPECT_EQ(form.Caption(), "Check Spelling (en_US)");
    form.cmdCancel.Click();
  });
}

TEST_F(Spelling, WhatTheUserTypesBetweenTwoWordsDoesNoHarm) {
  user.desktop.onDoEvents = [this] {
    user.form.txtEdit.SetText("x\r");
    user.form.mnuCheckSpelling.Click();                                    // A check is running.
    user.desktop.platform.forms.Loaded<frmSpelling>()->cmdIgnore.Click();  // No word waits.
  };
  Check("«»xyz teh uvw", [this](frmSpelling& form) {
    form.cmdIgnore.Click();
    EXPECT_EQ(user.Shown(), "x\r«»");
    form.cmdChange.Click();
    EXPECT_EQ(user.Shown(), "x\r«»");
    form.cmdIgnore.Click();
  });
  EXPECT_EQ(user.form.txtEdit.Text(), "x\r");

  user.desktop.onDoEvents = [this] { user.Pane().Type("\r"); };
  Check("«»teh\r\nteh xyz", [](frmSpelling& form) {
    form.cmdIgnore.Click();
    form.cmdChange.Click();
    form.cmdCancel.Click();
  });
  EXPECT_EQ(user.form.txtEdit.Text(), "teh\r\n\r\n xyz");
}

TEST_F(Spelling, ClosingTheProgramBetweenTwoWordsEndsTheCheck) {
  user.desktop.onDoEvents = [this] {
    user.desktop.ExpectMsgBox("Save Current Before Closing?", kYesNoCancel + kQuestionIcon,
                              "Save on Open...", kNo);
    user.form.Unload();
  };
  Check("«»teh xyz teh", [](frmSpelling& form) { form.cmdChangeAll.Click(); });
  EXPECT_EQ(user.form.txtEdit.Text(), "the xyz teh");
}

// In time that grows with the square of the text it would not end before the test is stopped.
TEST(SpellCheck, ChangesEveryWordOfALargePage) {
  ScriptedDictionary dictionary;
  SpellCheck check(dictionary);
  std::string text;
  std::string expected;
  for (int i = 0; i < 200'000; ++i) {
    text += "teh\n ";
    expected += "there\n ";
  }
  check.CheckText(text);
  check.ChangeAll("there");
  EXPECT_EQ(check.ContinueCheck(), kCheckFinished);
  EXPECT_EQ(check.CheckedText(), expected);
  EXPECT_EQ(dictionary.asked.size(), 1U);
}

}  // namespace
}  // namespace tagsmith::integration
