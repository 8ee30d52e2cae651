#pragma once

#include <span>

namespace tagsmith {

/// A set of words that the page lexer knows: its number in Scintilla, the words parted by blanks.
struct PaneWords {
  unsigned set;
  const char* words;
};

std::span<const PaneWords> PaneWordSets();

}  // namespace tagsmith
