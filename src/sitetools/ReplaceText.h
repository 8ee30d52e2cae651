#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "services/TextSearch.h"

namespace tagsmith::sitetools {

/// What a run over a text has replaced, as the one stretch that differs. All positions are bytes,
/// from 0, but for `foundPos`.
struct ReplacedRange {
  /// The stretch of the old text from the first match to the end of the last one, widened so that
  /// neither end stands between CR and LF. Both are 0 where nothing was replaced.
  std::size_t start = 0;
  std::size_t end = 0;
  std::string text;       ///< What to put there.
  std::size_t count = 0;  ///< Replacements made.
  /// Whether a search that failed ended the run, and not that it came to the last character.
  bool endedBySearch = false;
  /// Where the last search found its match in the text of that moment, in bytes from 1; 0 if it
  /// failed or if there was none.
  std::int32_t foundPos = 0;
};

/// Replaces in `text` (UTF-8) match after match of `find`, each search beginning behind the
/// replacement before it. The run ends with a search that fails, or where less than two characters
/// are left to search: the last character alone is not looked at. An empty pattern is not found.
/// Takes time in proportion to the text and the result.
ReplacedRange ReplaceAll(std::string_view text, const TextSearch& find,
                         std::string_view replacement);

/// As `ReplaceAll`, but each search begins one character behind the start of the last match, so
/// that a match which a replacement forms with what follows it is replaced too: `aa` by `ba` makes
/// `bba` of `aaa`. Gives the whole new text. A replacement that holds the pattern behind its first
/// character would feed itself for ever; there a search begins behind the replacement. An empty
/// pattern leaves the text as it is. Takes time in proportion to the text and the result.
std::string ReplaceInFile(std::string_view text, const TextSearch& find,
                          std::string_view replacement);

}  // namespace tagsmith::sitetools
