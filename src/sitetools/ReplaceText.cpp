#include "sitetools/ReplaceText.h"

#include "services/FoldedChar.h"

namespace tagsmith::sitetools {
namespace {

// The byte behind the character at `position`, or the end of the text.
std::size_t NextCharacter(std::string_view text, std::size_t position) {
  return position < text.size() ? position + ReadFolded(text, position).length : text.size();
}

std::size_t CountCharacters(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < text.size(); i = NextCharacter(text, i)) ++count;
  return count;
}

bool StandsInCrLf(std::string_view text, std::size_t position) {
  return position > 0 && text.substr(position - 1, 2) == "\r\n";
}

void WidenToLineEnds(ReplacedRange& range, std::string_view text) {
  if (StandsInCrLf(text, range.start)) {
    --range.start;
    range.text.insert(0, 1, '\r');
  }
  if (StandsInCrLf(text, range.end)) {
    ++range.end;
    range.text += '\n';
  }
}

/// A replacement of which all but the first character is searched again, together with what
/// follows it.
class SearchedReplacement {
 public:
  SearchedReplacement(std::string_view text, const TextSearch& find)
      : text_(text), find_(find), length_(CountCharacters(text)) {
    const std::size_t second = NextCharacter(text, 0);
    // It must not feed itself.
    searchesItself_ = second < text.size() && !find.Find(text, second);
    if (searchesItself_) begun_ = find.BegunAtEnd(text.substr(second));
  }

  /// Appends to `result` what becomes of a match that ends at byte `rest` of `text`, with all
  /// matches that begin in a replacement before them. Gives the place in `text` behind it all, from
  /// which the search goes on.
  std::size_t Append(std::string& result, std::string_view text, std::size_t rest) const {
    if (text_.empty()) {
      // The search goes on behind the character that has moved up to the start of the match.
      const std::size_t next = NextCharacter(text, rest);
      result += text.substr(rest, next - rest);
      return next;
    }
    while (const auto match = find_.FindBegun(begun_, text, rest)) {
      AppendBeginning(result, length_ - match->before);
      rest = match->end;
    }
    result += text_;
    return rest;
  }

  /// Whether there is more than one character to search behind a replacement that `text` follows
  /// from byte `rest` on.
  bool GoesOn(std::string_view text, std::size_t rest) const {
    const std::size_t first = searchesItself_ ? rest : NextCharacter(text, rest);
    return first < text.size();
  }

 private:
  void AppendBeginning(std::string& result, std::size_t characters) const {
    std::size_t end = 0;
    for (std::size_t i = 0; i < characters; ++i) end = NextCharacter(text_, end);
    result += text_.substr(0, end);
  }

  std::string_view text_;
  const TextSearch& find_;
  std::size_t length_;  // In characters.
  bool searchesItself_ = false;
  std::size_t begun_ = 0;
};

}  // namespace

ReplacedRange ReplaceAll(std::string_view text, const TextSearch& find,
                         std::string_view replacement) {
  ReplacedRange range;
  while (NextCharacter(text, range.end) < text.size()) {
    const auto match = find.IsEmpty() ? std::nullopt : find.Find(text, range.end);
    if (!match) {
      range.endedBySearch = true;
      range.foundPos = 0;
      break;
    }
    if (range.count == 0) range.start = range.end = match->start;
    range.text += text.substr(range.end, match->start - range.end);
    range.foundPos = static_cast<std::int32_t>(range.start + range.text.size() + 1);
    range.text += replacement;
    range.end = match->start + match->length;
    ++range.count;
  }
  if (range.count > 0) WidenToLineEnds(range, text);
  return range;
}

std::string ReplaceInFile(std::string_view text, const TextSearch& find,
                          std::string_view replacement) {
  if (find.IsEmpty()) return std::string(text);
  const SearchedReplacement replaced(replacement, find);
  std::string result;
  std::size_t rest = 0;
  bool goesOn = NextCharacter(text, 0) < text.size();
  while (goesOn) {
    const auto match = find.Find(text, rest);
    if (!match) break;
    result += text.substr(rest, match->start - rest);
    rest = replaced.Append(result, text, match->start + match->length);
    goesOn = replaced.GoesOn(text, rest);
  }
  result += text.substr(rest);
  return result;
}

}  // namespace tagsmith::sitetools
