#include "core/BlockComment.h"

#include <gtest/gtest.h>

#include <random>

#include "support/MarkedText.h"
#include "support/PlainTextPane.h"
#include "support/ScriptedDesktop.h"

namespace tagsmith {
namespace {

// The commands as a person would tell them: step through every position from the selection's start
// and act where a line begins.
void CommentByStepping(TextPane& pane, std::string_view symbol) {
  const std::size_t start = pane.SelStart();
  const std::size_t first = pane.LineFromPosition(start);
  const std::size_t last = pane.LineFromPosition(start + pane.SelLength());
  const auto putSymbol = [&] {
    pane.ReplaceSelection(std::string(symbol) + pane.TextRange(pane.SelStart(), pane.SelLength()));
  };
  putSymbol();
  std::size_t current = first;
  for (std::size_t i = start; first != last; ++i) {
    pane.Select(i, 0);
    const std::size_t line = pane.LineFromPosition(i);
    if (line != current) {
      putSymbol();
      ++current;
    }
    if (line == last) return;
  }
}

void UncommentByStepping(TextPane& pane, std::string_view symbol) {
  const std::size_t start = pane.SelStart();
  const std::size_t first = pane.LineFromPosition(start);
  const std::size_t last = pane.LineFromPosition(start + pane.SelLength());
  const std::string selected = pane.TextRange(start, pane.SelLength());
  if (selected.starts_with(symbol)) pane.ReplaceSelection(selected.substr(symbol.size()));
  std::size_t current = first;
  for (std::size_t i = start; first != last; ++i) {
    pane.Select(i, 0);
    const std::size_t line = pane.LineFromPosition(i);
    if (line != current) {
      const std::size_t place = pane.SelStart();
      pane.Select(place, symbol.size());
      if (pane.TextRange(place, pane.SelLength()) == symbol) pane.ReplaceSelection("");
      pane.Select(place, 0);
      ++current;
    }
    if (line == last) return;
  }
}

std::string Marked(const TextPane& pane) {
  return MarkedText{pane.Text(), pane.SelStart(), pane.SelLength()}.Write();
}

std::string After(const MarkedText& before, const TextEdit& edit) {
  std::string text = before.text;
  text.replace(edit.start, edit.length, edit.replacement);
  return MarkedText{text, edit.selStart, edit.selLength}.Write();
}

// Texts of pieces that meet in unlucky ways; a selection never starts between CR and LF.
TEST(BlockComment, DoesWhatSteppingThroughThePositionsDoes) {
  ScriptedDesktop desktop;
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

    PlainTextPane pane(desktop.clipboard);
    const auto reset = [&] {
      pane.SetText(text);
      pane.Select(from, to - from);
    };
    reset();
    CommentByStepping(pane, symbol);
    ASSERT_EQ(After(before, CommentBlock(text, from, to - from, symbol)), Marked(pane))
        << "commenting " << before.Write() << " with " << symbol;
    reset();
    UncommentByStepping(pane, symbol);
    ASSERT_EQ(After(before, UncommentBlock(text, from, to - from, symbol)), Marked(pane))
        << "uncommenting " << before.Write() << " of " << symbol;
  }
}

}  // namespace
}  // namespace tagsmith
