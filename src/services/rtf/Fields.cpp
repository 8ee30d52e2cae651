#include "services/rtf/Fields.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstddef>
#include <optional>

namespace tagsmith::rtf {
namespace {

struct Word {
  std::string text;
  bool isQuoted = false;

  bool IsSwitch(char letter) const {
    return !isQuoted && text.size() == 2 && text[0] == '\\' &&
           std::tolower(static_cast<unsigned char>(text[1])) == letter;
  }
};

bool IsName(const Word& word, std::string_view name) {
  return std::ranges::equal(word.text, name, {},
                            [](unsigned char letter) { return std::toupper(letter); });
}

class WordReader {
 public:
  explicit WordReader(std::string_view text) : text_(text) {}

  std::optional<Word> Next() {
    position_ = std::min(text_.find_first_not_of(' ', position_), text_.size());
    if (position_ == text_.size()) return std::nullopt;
    return text_[position_] == '"' ? Quoted() : Bare();
  }

  /// The next word if it is no switch; otherwise nothing is taken.
  std::optional<Word> NextArgument() {
    const std::size_t start = position_;
    std::optional<Word> word = Next();
    if (!word || word->isQuoted || word->text[0] != '\\') return word;
    position_ = start;
    return std::nullopt;
  }

 private:
  // A backslash stands for the character behind it.
  Word Quoted() {
    Word word{{}, true};
    for (++position_; position_ < text_.size() && text_[position_] != '"'; ++position_) {
      if (text_[position_] == '\\' && position_ + 1 < text_.size()) ++position_;
      word.text += text_[position_];
    }
    ++position_;
    return word;
  }

  Word Bare() {
    const std::size_t end = std::min(text_.find_first_of(" \"", position_), text_.size());
    Word word{std::string(text_.substr(position_, end - position_)), false};
    position_ = end;
    return word;
  }

  std::string_view text_;
  std::size_t position_ = 0;
};

FieldMeaning ReadLink(WordReader& words) {
  std::string address;
  std::string bookmark;
  while (const auto word = words.Next()) {
    if (word->IsSwitch('l')) {
      if (const auto name = words.NextArgument()) bookmark = "#" + name->text;
    } else if (word->IsSwitch('o') || word->IsSwitch('t')) {
      words.NextArgument();
    } else if (address.empty() && (word->isQuoted || word->text[0] != '\\')) {
      address = word->text;
    }
  }
  if (address.empty() && bookmark.empty()) return {};
  return {.kind = FieldKind::kLink, .target = address + bookmark, .font = {}};
}

// Decimal, or hexadecimal behind "0x".
char32_t ReadNumber(std::string_view text) {
  const bool isHex = text.starts_with("0x") || text.starts_with("0X");
  if (isHex) text.remove_prefix(2);
  unsigned number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number, isHex ? 16 : 10);
  return number;
}

FieldMeaning ReadSymbol(WordReader& words) {
  FieldMeaning meaning;
  while (const auto word = words.Next()) {
    if (word->IsSwitch('f')) {
      if (const auto name = words.NextArgument()) meaning.font = name->text;
    } else if (word->IsSwitch('u')) {
      meaning.isUnicode = true;
    } else if (word->IsSwitch('s')) {
      words.NextArgument();
    } else if (meaning.character == 0) {
      meaning.character = ReadNumber(word->text);
    }
  }
  if (meaning.character == 0) return {};
  meaning.kind = FieldKind::kSymbol;
  return meaning;
}

}  // namespace

FieldMeaning ReadInstruction(std::string_view instruction) {
  WordReader words(instruction);
  const auto name = words.Next();
  if (name && IsName(*name, "HYPERLINK")) return ReadLink(words);
  if (name && IsName(*name, "SYMBOL")) return ReadSymbol(words);
  return {};
}

}  // namespace tagsmith::rtf
