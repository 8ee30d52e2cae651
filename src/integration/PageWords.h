#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "integration/PageMarkup.h"
#include "integration/WordCharacters.h"

namespace tagsmith::integration {

/// What counts as a word.
struct WordOptions {
  bool pageTextOnly = true;       ///< Not markup, scripts, server code.
  bool passOverCapitals = false;  ///< Words of two letters or more, all of them capitals.
  std::size_t leastLetters = 0;   ///< Shorter words are passed over.
  bool passOverDigits = true;     ///< Words with digits or underscores in them.
};

/// A word of a page. Positions and lengths are bytes.
struct PageWord {
  std::size_t start = 0;
  std::size_t length = 0;
  /// As it is spelt: UTF-8, letters for character references, no soft hyphens. Lives until the next
  /// word is asked for.
  std::string_view text;
  /// What ends the text in which the word stands: the quote of an attribute value, a blank for a
  /// value without quotes, NUL for the text of the page.
  char delimiter = '\0';
};

/// Walks through the source of a page (UTF-8) and gives the words of its text one by one: those
/// that a reader sees, and the values of "alt" and "title". Addresses, file names and numbers are
/// no words, nor are the scripts that write without gaps between words. Reads the page once; a copy
/// goes on at the same place. Damaged markup is read as browsers do.
class PageWords {
 public:
  /// `page` outlives the object.
  explicit PageWords(std::string_view page, const WordOptions& options = {})
      : page_(page), markup_(page), options_(options), limit_(page.size()) {}

  /// The next word, nothing at the end.
  std::optional<PageWord> Next();

 private:
  /// A character or the reference for one. `length` is in bytes, at least 1.
  struct Piece {
    CharacterClass kind = CharacterClass::kOther;
    char32_t codePoint = 0;
    std::size_t length = 1;
    bool isReference = false;
  };

  /// A run of letters, digits and what belongs to them.
  struct Token {
    std::string_view text;
    std::size_t end = 0;
    bool hasLetter = false;
    bool hasDigit = false;
  };

  bool FindWordStart();
  bool LeaveValue();
  void PassMarkup();
  void BeginTag();
  void PassTag();
  bool PassAttribute();
  void PassContents();
  bool PassAddress();
  Piece Read(std::size_t position) const;
  Token ReadToken(std::size_t start);
  bool IsWord(const Token& token) const;

  std::string_view page_;
  PageMarkup markup_;
  WordOptions options_;
  std::size_t position_ = 0;
  std::size_t limit_;         // The end of the text in which position_ stands.
  std::size_t chunkEnd_ = 0;  // Up to here nothing is an address.
  std::size_t valueBehind_ = 0;
  char delimiter_ = '\0';
  std::string_view contents_;  // The element whose contents follow the tag and are no text.
  std::string spelling_;       // Of a word that is written otherwise.
};

/// How `text` (UTF-8) has to be written in place of `word`, whose bytes in the page are `written`:
/// with references if the word has some, and so that it does not end the value it stands in.
std::string WrittenAs(std::string_view text, const PageWord& word, std::string_view written);

}  // namespace tagsmith::integration
