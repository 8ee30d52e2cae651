#pragma once

#include <cstddef>
#include <string_view>

namespace tagsmith {

/// Where the line that holds byte `position` ends: behind its line end, or at the end of the text.
/// Lines end at CR LF, CR or LF.
std::size_t NextLineStart(std::string_view text, std::size_t position);

/// How many line ends `text` has: the 0-based number of its last line.
std::size_t CountLineEnds(std::string_view text);

/// The line end that `text` uses most; CR LF for a text without any, and where two are level.
std::string_view PrevailingLineEnd(std::string_view text);

}  // namespace tagsmith
