#include "integration/PageMarkup.h"

#include <algorithm>

namespace tagsmith::integration {
namespace {

// As they stand in `PageMarkup::End`.
constexpr std::string_view kEnds[] = {">", "-->", "]]>", "?>", "%>"};

}  // namespace

std::size_t PageMarkup::Behind(End end, std::size_t from) {
  const auto which = static_cast<std::size_t>(end);
  if (from >= goneFrom_[which]) return kNone;
  const std::size_t found = page_.find(kEnds[which], from);
  if (found != kNone) return found + kEnds[which].size();
  goneFrom_[which] = from;
  return kNone;
}

std::size_t PageMarkup::BehindServerCode(std::size_t position) {
  if (Has(position, "<%")) return Behind(End::kActivePage, position + 2);
  if (!Has(position, "<?")) return kNone;
  const std::size_t behind = Behind(End::kScript, position + 2);
  if (behind != kNone) return behind;
  // Code up to the end of the file needs no end of its own; anything else is a comment to browsers.
  const bool isCode = IsName(page_.substr(position + 2, 3), "php") || Has(position, "<?=");
  return isCode ? page_.size() : Behind(End::kTag, position);
}

std::size_t PageMarkup::BehindSpecial(std::size_t position) {
  if (Has(position, "<!--")) {
    // "<!-->" is a whole comment; one that is never closed takes the rest of the page.
    return std::min(Behind(End::kComment, position + 2), page_.size());
  }
  if (Has(position, "<![CDATA[")) {
    const std::size_t behind = Behind(End::kCharacterData, position);
    if (behind != kNone) return behind;
  }
  const bool isEndTag = Has(position, "</");
  const bool isTag = isEndTag && position + 2 < page_.size() && IsAsciiLetter(page_[position + 2]);
  if (Has(position, "<!") || (isEndTag && !isTag)) return Behind(End::kTag, position);
  return BehindServerCode(position);
}

bool PageMarkup::BeginsTag(std::size_t position) {
  std::size_t name = position + 1;
  if (name < page_.size() && page_[name] == '/') ++name;
  return name < page_.size() && IsAsciiLetter(page_[name]) && Behind(End::kTag, name) != kNone;
}

std::size_t PageMarkup::EndOfContents(std::size_t position, std::string_view element) const {
  for (;; position += 2) {
    position = page_.find("</", position);
    if (position == kNone) return page_.size();
    const std::size_t behind = position + 2 + element.size();
    if (!IsName(page_.substr(position + 2, element.size()), element)) continue;
    if (behind == page_.size() || IsSpace(page_[behind]) || page_[behind] == '>' ||
        page_[behind] == '/') {
      return position;
    }
  }
}

std::size_t PageMarkup::ClosingQuote(std::size_t from, char quote) {
  std::size_t& goneFrom = quote == '"' ? noQuoteFrom_ : noApostropheFrom_;
  if (from >= goneFrom) return kNone;
  const char stops[] = {quote, '<'};
  for (std::size_t at = from;;) {
    const std::size_t found = page_.find_first_of(std::string_view(stops, 2), at);
    if (found == kNone) break;
    if (page_[found] == quote) return found;
    const std::size_t behind = BehindServerCode(found);
    at = behind == kNone ? found + 1 : behind;
  }
  goneFrom = from;
  return kNone;
}

PageMarkup::Value PageMarkup::ReadValue(std::size_t position) {
  const char first = position < page_.size() ? page_[position] : '>';
  if (first == '"' || first == '\'') {
    const std::size_t end = ClosingQuote(position + 1, first);
    if (end != kNone) return {position + 1, end, end + 1, first};
  }
  std::size_t end = position;
  while (end < page_.size() && !IsSpace(page_[end]) && page_[end] != '>') {
    const std::size_t behind = page_[end] == '<' ? BehindServerCode(end) : kNone;
    end = behind == kNone ? end + 1 : behind;
  }
  return {position, end, end, ' '};
}

}  // namespace tagsmith::integration
