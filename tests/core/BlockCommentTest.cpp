#include "core/BlockComment.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <utility>
#include <vector>

#include "support/MarkedText.h"
#include "support/PlainTextPane.h"

namespace tagsmith {
namespace {

// The commands as a person would tell them: act at the selection's start, then step through every
// position and act where a line begins.
void Step(TextPane& pane, const std::function<void()>& actAtStart,
          const std::function<void()>& actAtLine) {
  const std::size_t start = pane.SelStart();
  std::size_t current = pane.LineFromPosition(start);
  const std::size_t last = pane.LineFromPosition(start + pane.SelLength());
  actAtStart();
  for (std::size_t i = start; current != last; ++i) {
    pane.Select(i, 0);
    if (pane.LineFromPosition(i) == current) continue;
    actAtLine();
    ++current;
  }
}

std::string Selected(const TextPane& pane) {
  return pane.TextRange(pane.SelStart(), pane.SelLength());
}

void CommentByStepping(TextPane& pane, const std::string& symbol) {
  const auto put = [&] { pane.ReplaceSelection(symbol + Selected(pane)); };
  Step(pane, put, put);
}

void UncommentByStepping(TextPane& pane, const std::string& symbol) {
  const auto take = [&] {
    if (Selected(pane).starts_with(symbol)) {
      pane.ReplaceSelection(Selected(pane).substr(symbol.size()));
    }
  };
  Step(pane, take, [&] {
    const std::size_t place = pane.SelStart();
    pane.Select(place, symbol.size());
    take();
    pane.Select(place, 0);
  });
}

std::string After(const MarkedText& before, const TextEdit& edit) {
  std::string text = before.text;
  text.replace(edit.start, edit.length, edit.replacement);
  return MarkedText{text, edit.selStart, edit.selLength}.Write();
}

// Texts of pieces that meet in unlucky ways; a selection never starts between CR and LF.
TEST(BlockComment, DoesWhatSteppingThroughThePositionsDoes) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  for (int round = 0; round < 4000; ++round) {
    const std::string lineEnd = std::vector<std::string>{"\r\n", "\n", "\r"}[below(3)];
    const std::vector<std::string> pieces = {lineEnd, lineEnd, "//", "/", "é", "x", " "};
    const std::string symbol = std::vector<std::string>{"//", "", "é", "/"}[below(4)];
    std::vector<std::size_t> places = {0};
    std::string text;
    for (std::size_t i = below(14); i > 0; --i) {
      text += pieces[below(pieces.size())];
      places.push_back(text.size());
    }
    std::size_t from = places[below(places.size())];
    std::size_t to = places[below(places.size())];
    if (from > to) std::swap(from, to);
    const MarkedText before{text, from, to - from};

    for (const auto& [edit, step] : {std::pair(&CommentBlock, &CommentByStepping),
                                     std::pair(&UncommentBlock, &UncommentByStepping)}) {
      PlainTextPane pane;
      pane.SetText(text);
      pane.Select(from, to - from);
      step(pane, symbol);
      const MarkedText stepped{pane.Text(), pane.SelStart(), pane.SelLength()};
      ASSERT_EQ(After(before, edit(text, from, to - from, symbol)), stepped.Write())
          << before.Write() << " and " << symbol;
    }
  }
}

}  // namespace
}  // namespace tagsmith
