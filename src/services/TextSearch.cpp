#include "services/TextSearch.h"

#include "services/CaseFold.h"

namespace tagsmith {

TextSearch::TextSearch(std::string_view pattern) : pattern_(FoldCase(pattern)) {}

std::optional<TextSearch::Match> TextSearch::Find(std::string_view text, std::size_t from) const {
  const std::size_t at = FoldCase(text).find(pattern_, from);
  if (at >= text.size()) return std::nullopt;
  return Match{at, pattern_.size()};
}

}  // namespace tagsmith
