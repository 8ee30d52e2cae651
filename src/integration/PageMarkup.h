#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tagsmith::integration {

/// Finds the ends of what is no text in the source of a page (UTF-8). Positions are byte offsets.
/// Asked at rising positions, all searches together read the page a few times at most: an end that
/// is not there is not looked for again from the same place on.
class PageMarkup {
 public:
  static constexpr std::size_t kNone = std::string_view::npos;

  /// `page` outlives the object.
  explicit PageMarkup(std::string_view page) : page_(page) { goneFrom_.fill(kNone); }

  /// Where the comment, declaration or server code that begins with the "<" at `position` ends;
  /// kNone when none of them begins there, or when browsers would show it as text.
  std::size_t BehindSpecial(std::size_t position);
  /// The same for server code alone, which may also stand within tags and values.
  std::size_t BehindServerCode(std::size_t position);
  /// Whether a tag begins with the "<" at `position`; one that is never closed is text.
  bool BeginsTag(std::size_t position);
  /// The place of the "</" that ends the contents of a script or the like, or the page's end.
  std::size_t EndOfContents(std::size_t position, std::string_view element) const;

  /// An attribute value: without its quotes, and where the tag goes on.
  struct Value {
    std::size_t start = 0;
    std::size_t end = 0;
    std::size_t behind = 0;
    char delimiter = ' ';  ///< Its quote, or a blank for none.
  };
  /// The value that begins at `position`, at its quote if it has one. A quote that is never closed
  /// counts as a part of the value.
  Value ReadValue(std::size_t position);

 private:
  enum class End { kTag, kComment, kCharacterData, kScript, kActivePage, kCount };

  std::size_t Behind(End end, std::size_t from);
  std::size_t ClosingQuote(std::size_t from, char quote);
  bool Has(std::size_t position, std::string_view text) const {
    return page_.compare(position, text.size(), text) == 0;
  }

  std::string_view page_;
  // From where on there is none. The search for a quote looks far ahead: what it misses there may
  // still stand in front of it.
  std::array<std::size_t, static_cast<std::size_t>(End::kCount)> goneFrom_{};
  std::size_t noQuoteFrom_ = kNone;
  std::size_t noApostropheFrom_ = kNone;
};

/// Whether `c` is one of HTML's white space characters.
constexpr bool IsSpace(char c) {
  return c == ' ' || c == '\n' || c == '\r' || c == '\t' || c == '\f';
}

constexpr bool IsAsciiLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// Whether two names are the same but for the case of ASCII letters; `lower` is in lower case.
constexpr bool IsName(std::string_view name, std::string_view lower) {
  constexpr char kCaseBit = 'a' - 'A';
  if (name.size() != lower.size()) return false;
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c + kCaseBit) : c) != lower[i]) return false;
  }
  return true;
}

}  // namespace tagsmith::integration
