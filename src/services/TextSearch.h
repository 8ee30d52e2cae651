#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tagsmith {

/// A text to look for without regard to case, as `FoldCase` has it. Made once, it searches any
/// number of texts, each in time proportional to the text's length, whatever the pattern: a search
/// costs what lies between its start and the end of its match.
class TextSearch {
 public:
  /// `pattern` is UTF-8; bytes that are no UTF-8 match themselves.
  explicit TextSearch(std::string_view pattern);

  /// Where the pattern occurs: bytes, from 0. The length is that of the text found, which may
  /// differ from the pattern's.
  struct Match {
    std::size_t start = 0;
    std::size_t length = 0;
  };

  /// The first match that starts at byte `from` of `text` (UTF-8) or behind it; it starts and ends
  /// between characters. An empty pattern is found at `from` in a text that goes on there, and not
  /// at the end of one.
  std::optional<Match> Find(std::string_view text, std::size_t from = 0) const;

  bool IsEmpty() const { return pattern_.empty(); }

  // --- For a text that is known only piece by piece ---

  /// How many characters at the end of `text` (UTF-8) may become a match by what follows it. A
  /// match within the text itself is passed over.
  std::size_t BegunAtEnd(std::string_view text) const;

  /// A match that began in front of a text.
  struct Completion {
    std::size_t before = 0;  ///< Its characters in front of the text, one or more.
    std::size_t end = 0;     ///< The byte of the text behind it.
  };

  /// The first match that begins in what stands in front of byte `from` of `text` and ends behind
  /// it. `begun` is what `BegunAtEnd` said of that.
  std::optional<Completion> FindBegun(std::size_t begun, std::string_view text,
                                      std::size_t from) const;

 private:
  void ComputeBorders();
  void ChooseAnchor();
  std::size_t Advance(std::size_t matched, char32_t next) const;
  std::size_t NextAnchor(std::string_view text, std::size_t from) const;
  std::size_t NextPair(std::string_view text, std::size_t from) const;
  bool MatchesBehind(std::string_view text, std::size_t& position, std::size_t& work) const;
  bool MatchesBefore(std::string_view text, std::size_t from, std::size_t& position,
                     std::size_t& work) const;
  std::optional<Match> FindStepwise(std::string_view text, std::size_t from) const;

  std::u32string pattern_;  // Folded; bytes that are no UTF-8 as `FoldedChar` has them.
  // Of the first n characters: how many at their end, less than n, are the pattern's beginning.
  std::vector<std::uint32_t> borders_;
  // Places are looked up by the one character of the pattern that pages have least of: its index,
  // and the bytes in which it ends, each of its cases in one of them.
  std::size_t anchor_ = 0;
  std::string anchorEndings_;
  bool hasPair_ = false;  // The anchor and the character in front of it are looked up together.
};

}  // namespace tagsmith
