#include "core/BlockComment.h"

#include <utility>
#include <vector>

#include "services/Lines.h"

namespace tagsmith {
namespace {

// The starts of the lines behind the one of `selStart`, down to the one that holds `selEnd`. A
// position between CR and LF belongs to the line that they end.
std::vector<std::size_t> FurtherLineStarts(std::string_view text, std::size_t selStart,
                                           std::size_t selEnd) {
  std::vector<std::size_t> starts;
  const auto endsLine = [text](std::size_t at) {
    return text[at - 1] == '\n' || text[at - 1] == '\r';
  };
  for (std::size_t at = selStart; at < selEnd;) {
    at = NextLineStart(text, at);
    if (at > selEnd || !endsLine(at)) break;
    starts.push_back(at);
  }
  return starts;
}

TextEdit Replace(std::size_t start, std::size_t end, std::string replacement) {
  const std::size_t caret = start + replacement.size();
  return {start, end - start, std::move(replacement), caret, 0};
}

}  // namespace

TextEdit CommentBlock(std::string_view text, std::size_t selStart, std::size_t selLength,
                      std::string_view symbol) {
  const std::size_t selEnd = selStart + selLength;
  std::string replacement(symbol);
  std::size_t done = selStart;
  for (const std::size_t lineStart : FurtherLineStarts(text, selStart, selEnd)) {
    replacement.append(text.substr(done, lineStart - done)).append(symbol);
    done = lineStart;
  }
  if (done != selStart) return Replace(selStart, done, std::move(replacement));
  replacement.append(text.substr(selStart, selLength));
  return Replace(selStart, selEnd, std::move(replacement));
}

TextEdit UncommentBlock(std::string_view text, std::size_t selStart, std::size_t selLength,
                        std::string_view symbol) {
  const std::size_t selEnd = selStart + selLength;
  const std::string_view selected = text.substr(selStart, selLength);
  const bool atSymbol = selected.starts_with(symbol);
  std::size_t done = selStart + (atSymbol ? symbol.size() : 0);
  const std::vector<std::size_t> lineStarts = FurtherLineStarts(text, selStart, selEnd);
  if (lineStarts.empty()) {
    if (!atSymbol) return {selStart, 0, {}, selStart, selLength};
    return Replace(selStart, selEnd, std::string(selected.substr(symbol.size())));
  }

  std::string replacement;
  std::size_t caret = selStart;
  for (const std::size_t lineStart : lineStarts) {
    if (lineStart < done) continue;  // Inside a symbol that has line ends itself.
    replacement.append(text.substr(done, lineStart - done));
    caret = selStart + replacement.size();
    done = lineStart + (text.substr(lineStart).starts_with(symbol) ? symbol.size() : 0);
  }
  return {selStart, done - selStart, std::move(replacement), caret, 0};
}

}  // namespace tagsmith
