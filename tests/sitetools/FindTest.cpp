#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "services/FoldedChar.h"
#include "sitetools/Install.h"
#include "sitetools/ReplaceText.h"
#include "sitetools/frmFind.h"
#include "support/RunningProgram.h"
#include "toolbars/Install.h"

namespace tagsmith::sitetools {
namespace {

// --- The replacing, beside the same done step by step ---

struct Character {
  std::string bytes;
  char32_t folded = 0;
};
using Characters = std::vector<Character>;

Characters Split(std::string_view text) {
  Characters characters;
  for (std::size_t i = 0; i < text.size();) {
    const FoldedChar next = ReadFolded(text, i);
    characters.push_back({std::string(text.substr(i, next.length)), next.value});
    i += next.length;
  }
  return characters;
}

// Positions count characters from 1; 0 is nowhere.
std::size_t SearchFrom(std::size_t position, const Characters& text, const Characters& find) {
  for (std::size_t at = position; at + find.size() <= text.size() + 1; ++at) {
    std::size_t i = 0;
    while (i < find.size() && text[at - 1 + i].folded == find[i].folded) ++i;
    if (i == find.size()) return at;
  }
  return 0;
}

void Put(Characters& text, std::size_t position, std::size_t length, const Characters& in) {
  const auto start = text.begin() + static_cast<std::ptrdiff_t>(position - 1);
  const auto place = text.erase(start, start + static_cast<std::ptrdiff_t>(length));
  text.insert(place, in.begin(), in.end());
}

struct StepByStep {
  std::string text;
  std::size_t count = 0;
  bool endedBySearch = false;
  std::size_t foundPos = 0;  // In bytes.
};

// In a file a match may also begin within the replacement, unless that holds one itself.
StepByStep ReplaceStepByStep(std::string_view before, std::string_view find,
                             std::string_view replacement, bool inFile) {
  StepByStep result;
  Characters text = Split(before);
  const Characters pattern = Split(find);
  const Characters in = Split(replacement);
  const std::size_t step = inFile && SearchFrom(2, in, pattern) == 0 ? 1 : in.size();
  for (std::size_t resume = 1; inFile ? resume != text.size() : resume < text.size();) {
    const std::size_t found = SearchFrom(resume, text, pattern);
    result.foundPos = 0;
    if (found == 0) {
      result.endedBySearch = true;
      break;
    }
    for (std::size_t i = 0; i + 1 < found; ++i) result.foundPos += text[i].bytes.size();
    ++result.foundPos;
    ++result.count;
    Put(text, found, pattern.size(), in);
    resume = found + step;
  }
  for (const Character& character : text) result.text += character.bytes;
  return result;
}

bool StandsInCrLf(std::string_view text, std::size_t position) {
  return position > 0 && text.substr(position - 1, 2) == "\r\n";
}

TEST(ReplaceText, DoesWhatTheSameDoneStepByStepDoes) {
  EXPECT_EQ(ReplaceInFile("abc", TextSearch(""), "x"), "abc");
  const std::vector<std::string> pieces = {"a",  "b",  "A",    "k",        "\xE2\x84\xAA", "K",
                                           "\r", "\n", "\r\n", "\xC3\xA4", "\xA4",         "\xC3"};
  std::mt19937 random(5);
  const auto make = [&](std::size_t least, std::size_t most, std::size_t kinds) {
    std::string text;
    for (auto count = least + random() % (most - least + 1); count > 0; --count) {
      text += pieces[random() % kinds];
    }
    return text;
  };
  for (int round = 0; round < 40'000; ++round) {
    const std::size_t kinds = 1 + random() % pieces.size();
    const std::string text = make(0, 14, kinds);
    const std::string find = make(1, 4, kinds);
    const std::string replacement = make(0, 5, kinds);
    SCOPED_TRACE(testing::PrintToString(text) + " " + testing::PrintToString(find) + " " +
                 testing::PrintToString(replacement));
    const TextSearch search(find);

    const StepByStep expected = ReplaceStepByStep(text, find, replacement, false);
    const ReplacedRange range = ReplaceAll(text, search, replacement);
    ASSERT_EQ(text.substr(0, range.start) + range.text + text.substr(range.end), expected.text);
    ASSERT_EQ(range.count, expected.count);
    ASSERT_EQ(range.endedBySearch, expected.endedBySearch);
    ASSERT_EQ(static_cast<std::size_t>(range.foundPos), expected.foundPos);
    ASSERT_FALSE(StandsInCrLf(text, range.start) || StandsInCrLf(text, range.end));

    ASSERT_EQ(ReplaceInFile(text, search, replacement),
              ReplaceStepByStep(text, find, replacement, true).text);
  }
}

// Each takes milliseconds; work that grows with the square of the text takes minutes.
// In quadratic time it would not end before the test is stopped.
TEST(ReplaceText, IsAsQuickWithEveryMatchAndEveryOverlap) {
  constexpr std::size_t kSize = 1'000'000;
  const std::string as(kSize, 'a');
  const std::string half(kSize / 2, 'a');
  EXPECT_EQ(ReplaceAll(as, TextSearch("a"), "aa").count, kSize - 1);
  EXPECT_EQ(ReplaceInFile(as, TextSearch("aa"), "ba"), std::string(kSize - 1, 'b') + "a");
  EXPECT_EQ(ReplaceInFile(as, TextSearch(half), "b" + half.substr(1)),
            std::string(kSize - half.size() + 1, 'b') + half.substr(1));
}

// --- The form ---

class FindForm : public testing::Test, protected RunningProgram {
 protected:
  FindForm() {
    toolbars::Install(app);
    Install(app);
    Begin();
    form.mnuFind.Click();
  }

  frmFind& Form() { return app.Instance<frmFind>(); }
  void Ask(std::string_view text, std::string_view find, std::string_view replacement = {}) {
    Put(text);
    Form().txtFind.SetText(find);
    Form().txtReplace.SetText(replacement);
    app.FoundPos = 0;
  }
  void Find() { Form().cmdCommand(0).Click(); }
  void FindNext() { Form().cmdCommand(1).Click(); }
  void Replace() { Form().cmdCommand(2).Click(); }
  void ReplaceEach() { Form().cmdCommand(3).Click(); }
  void ExpectNotFound(std::string_view find) {
    desktop.ExpectMsgBox(std::string(find) + " Was Not Found", kInformationIcon, "Sorry...");
  }
};

TEST_F(FindForm, FindStaysAtTheFirstMatchAndNextGoesRound) {
  Ask("«»ä\xE2\x84\xAA\r\nK k", "k");
  Find();
  EXPECT_EQ(Shown(), "ä«\xE2\x84\xAA»\r\nK k");
  EXPECT_TRUE(Form().cmdCommand(1).HasFocus());
  EXPECT_EQ(desktop.platform.forms.Active(), &Form());
  Form().txtFind.Type("\r");
  EXPECT_EQ(app.FoundPos, 3);

  FindNext();
  EXPECT_EQ(Shown(), "ä\xE2\x84\xAA\r\n«K» k");
  EXPECT_EQ(desktop.platform.forms.Active(), &form);
  EXPECT_TRUE(form.txtEdit.HasFocus());
  FindNext();
  EXPECT_EQ(Shown(), "ä\xE2\x84\xAA\r\nK «k»");
  FindNext();
  EXPECT_EQ(Shown(), "ä«\xE2\x84\xAA»\r\nK k");
  EXPECT_FALSE(form.DocumentChanged());
}

TEST_F(FindForm, WhatIsNotThereIsReportedAndMovesNothing) {
  Ask("a«b»c", "x", "y");
  for (int i = 0; i < 4; ++i) {
    ExpectNotFound("x");
    Form().cmdCommand(i).Click();
    EXPECT_EQ(Shown(), "a«b»c");
  }
  EXPECT_FALSE(form.DocumentChanged());
}

TEST_F(FindForm, ReplaceTakesTheFirstMatchAndPutsInWhatWasTyped) {
  Ask("abc A«B»C", "ABC", "xY");
  Replace();
  EXPECT_EQ(Shown(), "xY«» ABC");
  EXPECT_TRUE(form.txtEdit.HasFocus());
  Ask("-a«»", "a", "aa");
  Replace();
  Replace();
  EXPECT_EQ(Shown(), "-aa«»a");
}

TEST_F(FindForm, ReplaceAllIsOneStepBack) {
  Ask("«»Tä tä t..", "T", "tt");
  form.txtEdit.EmptyUndoHistory();
  desktop.ExpectMsgBox("3 Replacements Were Made", kInformationIcon, "Replace All Completed...");
  ReplaceEach();
  EXPECT_EQ(Shown(), "ttä ttä tt«»..");
  EXPECT_TRUE(form.DocumentChanged());
  Pane().Undo();
  EXPECT_EQ(form.txtEdit.Text(), "Tä tä t..");
}

TEST_F(FindForm, ReplaceAllEndsWithoutAWordAtTheLastCharacter) {
  Ask("ab ab«»", "ab", "x");
  ReplaceEach();
  EXPECT_EQ(Shown(), "x x«»");
  EXPECT_EQ(app.FoundPos, 3);
  Ask("«»a", "a", "b");
  ReplaceEach();
  EXPECT_EQ(Shown(), "«»a");
}

TEST_F(FindForm, AnEmptySearchTextIsFoundWhereTheSearchStarts) {
  Ask("a«b»", "", "x");
  Find();
  EXPECT_EQ(Shown(), "«»ab");
  FindNext();
  EXPECT_EQ(Shown(), "a«»b");
  Replace();
  EXPECT_EQ(Shown(), "x«»ab");
  ExpectNotFound("");
  ReplaceEach();
  EXPECT_EQ(Shown(), "x«»ab");
}

TEST_F(FindForm, ThePlaceOutlivesTheForm) {
  EXPECT_TRUE(Form().IsOnTop());
  Ask("«»a a a", "a");
  Find();
  Form().cmdCommand(4).Click();
  EXPECT_EQ(desktop.platform.forms.Loaded<frmFind>(), nullptr);

  form.mnuReplace.Click();
  Form().txtFind.Type("A");
  FindNext();
  EXPECT_EQ(Shown(), "a «a» a");
  form.mnuFind.Click();
  EXPECT_EQ(Form().txtFind.Text(), "A");
  EXPECT_EQ(desktop.platform.forms.Active(), &Form());
}

TEST_F(FindForm, NothingIsFoundWhileNoDocumentIsOpen) {
  form.mnuFileClose.Click();
  Form().txtFind.SetText("a");
  ExpectNotFound("a");
  Find();
  ReplaceEach();
  EXPECT_FALSE(form.HasDocument());
}

}  // namespace
}  // namespace tagsmith::sitetools
