#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tagsmith {

/// What a command makes of a text: the piece that changes, what stands in its place, and the
/// selection afterwards. Byte offsets.
struct TextEdit {
  std::size_t start = 0;
  std::size_t length = 0;
  std::string replacement;
  std::size_t selStart = 0;
  std::size_t selLength = 0;
};

/// Comments the lines of a selection in `text` (UTF-8): `symbol` goes in front of the selection
/// itself, and to the start of each further line down to the one that holds the selection's end.
/// The caret stands behind the last symbol; within one line, behind the selected text.
TextEdit CommentBlock(std::string_view text, std::size_t selStart, std::size_t selLength,
                      std::string_view symbol);

/// Takes `symbol` away where `CommentBlock` would put it, lines without it being passed over. The
/// caret stands at the start of the last line. Within one line it stands behind the selected text,
/// or the selection stays if it does not begin with the symbol.
TextEdit UncommentBlock(std::string_view text, std::size_t selStart, std::size_t selLength,
                        std::string_view symbol);

}  // namespace tagsmith
