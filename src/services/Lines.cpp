#include "services/Lines.h"

namespace tagsmith {
namespace {

constexpr std::string_view kLineEndCharacters = "\r\n";

std::size_t LineEndLength(std::string_view text, std::size_t position) {
  return text.substr(position, 2) == "\r\n" ? 2 : 1;
}

// Calls `visit` with each line end of the text.
template <class Visit>
void ForEachLineEnd(std::string_view text, Visit visit) {
  for (std::size_t at = text.find_first_of(kLineEndCharacters); at != std::string_view::npos;) {
    const std::size_t length = LineEndLength(text, at);
    visit(text.substr(at, length));
    at = text.find_first_of(kLineEndCharacters, at + length);
  }
}

}  // namespace

std::size_t NextLineStart(std::string_view text, std::size_t position) {
  const std::size_t at = text.find_first_of(kLineEndCharacters, position);
  return at == std::string_view::npos ? text.size() : at + LineEndLength(text, at);
}

std::size_t CountLineEnds(std::string_view text) {
  std::size_t count = 0;
  ForEachLineEnd(text, [&count](std::string_view) { ++count; });
  return count;
}

std::string_view PrevailingLineEnd(std::string_view text) {
  std::size_t crLf = 0;
  std::size_t cr = 0;
  std::size_t lf = 0;
  ForEachLineEnd(text, [&](std::string_view lineEnd) {
    ++(lineEnd.size() == 2 ? crLf : lineEnd == "\r" ? cr : lf);
  });
  if (crLf >= cr && crLf >= lf) return "\r\n";
  return lf >= cr ? "\n" : "\r";
}

}  // namespace tagsmith
