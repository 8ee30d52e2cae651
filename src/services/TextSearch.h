#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tagsmith {

/// A text to look for without regard to case, as `FoldCase` has it. Made once, it searches any
/// number of texts, each in time proportional to the text's length.
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

  /// The first match that starts at byte `from` of `text` (UTF-8) or behind it. An empty pattern is
  /// found at `from` in a text that goes on there, and not at the end of one.
  std::optional<Match> Find(std::string_view text, std::size_t from = 0) const;

  bool IsEmpty() const { return pattern_.empty(); }

 private:
  std::string pattern_;
};

}  // namespace tagsmith
