// What every text pane promises, asked of each of them.

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <memory>
#include <string>
#include <utility>

#include "services/desktop/editpane/QtTextPane.h"
#include "support/PlainTextPane.h"

namespace tagsmith {
namespace {

struct PaneKind {
  std::string name;
  std::unique_ptr<TextPane> (*make)();
  void (*pressEnter)(TextPane&);
};

const PaneKind kPlain = {
    "Plain", []() -> std::unique_ptr<TextPane> { return std::make_unique<PlainTextPane>(); },
    [](TextPane& pane) { dynamic_cast<PlainTextPane&>(pane).Type("\n"); }};

const PaneKind kQt = {"Qt",
                      []() -> std::unique_ptr<TextPane> { return std::make_unique<QtTextPane>(); },
                      [](TextPane& pane) {
                        QTest::keyClick(dynamic_cast<QtTextPane&>(pane).Widget(), Qt::Key_Return);
                      }};

class TextPaneContract : public testing::TestWithParam<PaneKind> {
 protected:
  using Span = std::pair<std::size_t, std::size_t>;

  Span Selection() const { return {pane_->SelStart(), pane_->SelLength()}; }
  // Gives what is selected then.
  Span Select(std::size_t start, std::size_t length) {
    pane_->Select(start, length);
    return Selection();
  }
  void Replace(std::size_t start, std::size_t length, std::string_view text) {
    pane_->Select(start, length);
    pane_->ReplaceSelection(text);
  }

  std::unique_ptr<TextPane> pane_ = GetParam().make();
};

INSTANTIATE_TEST_SUITE_P(Panes, TextPaneContract, testing::Values(kPlain, kQt),
                         [](const auto& test) { return test.param.name; });

TEST_P(TextPaneContract, KeepsEveryByte) {
  using namespace std::string_literals;
  for (const std::string& text :
       {""s, "\xEF\xBB\xBF<html>\r\n</html>"s, "a\rb\nc\r\nd\n\r"s, "NUL \0 and \0"s,
        "\u00e9\u20ac\U0001F600\u2028\x7F"s, "no UTF-8: \xFF\x80\xC3"s}) {
    pane_->SetText(text);
    EXPECT_EQ(pane_->Text(), text);
    EXPECT_EQ(pane_->Length(), text.size());
    Replace(text.size() / 2, 0, text);
    EXPECT_EQ(pane_->Length(), 2 * text.size());
    pane_->Undo();
    EXPECT_EQ(pane_->Text(), text);
  }
}

TEST_P(TextPaneContract, BringsEveryPositionToACharacterInTheText) {
  constexpr std::size_t kFar = static_cast<std::size_t>(-1);
  pane_->SetText("a\u20acb\U0001F600");  // at 0, 1, 4 and 5; the end is 9
  EXPECT_EQ(Select(2, 0), Span(1, 0));
  EXPECT_EQ(Select(3, 2), Span(1, 4));
  EXPECT_EQ(Select(4, 3), Span(4, 1));
  EXPECT_EQ(Select(5, kFar), Span(5, 4));
  EXPECT_EQ(Select(kFar, kFar), Span(9, 0));
  EXPECT_EQ(pane_->TextRange(2, 2), "\u20ac");
  EXPECT_EQ(pane_->TextRange(4, kFar), "b\U0001F600");
  EXPECT_EQ(pane_->TextRange(kFar, 1), "");
  EXPECT_EQ(pane_->LineFromPosition(kFar), 0U);
  Replace(8, 1, "!");
  EXPECT_EQ(pane_->Text(), "a\u20acb!");
}

TEST_P(TextPaneContract, LetsNoCaretStandInALineEnd) {
  pane_->SetText("\u00e9\r\n\n");  // the pair is at 2
  EXPECT_EQ(Select(3, 0), Span(2, 0));
  EXPECT_EQ(Select(0, 3), Span(0, 2));
  EXPECT_EQ(Select(3, 2), Span(2, 3));
  EXPECT_EQ(Select(4, 1), Span(4, 1));
  EXPECT_EQ(pane_->TextRange(3, 1), "\r\n");
  Replace(3, 0, "|\u20ac");
  EXPECT_EQ(pane_->Text(), "\u00e9|\u20ac\r\n\n");
  EXPECT_EQ(Selection(), Span(6, 0)) << "behind what was put in";

  // An edit can make the pair around the caret.
  pane_->SetText("a\rx\n");
  Replace(2, 1, "");
  EXPECT_EQ(Selection(), Span(1, 0));
  pane_->SetText("a\n");
  Replace(1, 0, "\r");
  EXPECT_EQ(Selection(), Span(1, 0));
  Replace(1, 2, "");
  pane_->Undo();
  EXPECT_EQ(Selection(), Span(3, 0));
}

TEST_P(TextPaneContract, CountsLinesByAnyLineEnd) {
  const std::string text = "a\r\nb\rc\n\nd\u2028e";
  pane_->SetText(text);
  constexpr std::size_t kLines[] = {0, 0, 0, 1, 1, 2, 2, 3, 4};
  for (std::size_t i = 0; i < std::size(kLines); ++i) {
    EXPECT_EQ(pane_->LineFromPosition(i), kLines[i]) << i;
  }
  EXPECT_EQ(pane_->LineFromPosition(text.size()), 4U);
  for (const char* lineEnd : {"\r\n", "\r", "\n"}) {
    Replace(pane_->Length(), 0, lineEnd);
    EXPECT_EQ(pane_->LineFromPosition(pane_->Length()), 5U);
    pane_->Undo();
  }
}

TEST_P(TextPaneContract, UndoesStepByStep) {
  pane_->SetText("first");
  pane_->SetText("second");
  Replace(6, 0, "a");
  Replace(7, 0, "b");
  pane_->ReplaceSelection("");
  for (const char* text : {"seconda", "second", "first", "", ""}) {
    pane_->Undo();
    EXPECT_EQ(pane_->Text(), text);
  }
}

TEST_P(TextPaneContract, UndoesAGroupAtOnceButNotWhileItIsOpen) {
  pane_->SetText("text");
  pane_->BeginUndoGroup();
  Replace(0, 1, "T");
  pane_->BeginUndoGroup();
  Replace(4, 0, "!");
  pane_->EndUndoGroup();
  pane_->Undo();
  EXPECT_EQ(pane_->Text(), "Text!");
  pane_->SetText("all new");
  pane_->EndUndoGroup();
  pane_->EndUndoGroup();  // one too many
  pane_->BeginUndoGroup();
  pane_->EndUndoGroup();  // an empty one
  pane_->Undo();
  EXPECT_EQ(pane_->Text(), "text");
}

TEST_P(TextPaneContract, ForgetsWhatCouldBeUndone) {
  pane_->SetText("old file");
  pane_->SetText("new file");
  pane_->EmptyUndoHistory();
  pane_->Undo();
  EXPECT_EQ(pane_->Text(), "new file");
  Replace(0, 3, "NEW");
  pane_->Undo();
  EXPECT_EQ(pane_->Text(), "new file");

  pane_->BeginUndoGroup();
  Replace(0, 3, "a");
  pane_->EmptyUndoHistory();
  Replace(0, 1, "b");
  pane_->EndUndoGroup();
  pane_->Undo();
  pane_->Undo();
  EXPECT_EQ(pane_->Text(), "a file");
}

TEST_P(TextPaneContract, TypesTheLineEndOfTheText) {
  GetParam().pressEnter(*pane_);
  EXPECT_EQ(pane_->Text(), "\r\n");
  const std::pair<const char*, const char*> cases[] = {
      {"a\nb\nc\r\n", "\n"}, {"a\rb", "\r"}, {"a\nb\r\n", "\r\n"}, {"", "\r\n"}};
  for (const auto& [text, lineEnd] : cases) {
    pane_->SetText(text);
    GetParam().pressEnter(*pane_);
    EXPECT_EQ(pane_->Text(), std::string(lineEnd) + text);
  }
}

}  // namespace
}  // namespace tagsmith
