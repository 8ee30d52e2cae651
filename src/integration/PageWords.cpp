#include "integration/PageWords.h"

#include <algorithm>

#include "integration/Addresses.h"
#include "integration/CharacterReferences.h"
#include "services/CaseFold.h"
#include "services/Utf8.h"

namespace tagsmith::integration {
namespace {

// More than the longest word of any language: what is longer is data.
constexpr std::size_t kLongestWord = 256;

constexpr std::string_view kWithoutText[] = {"script", "style", "cfscript", "cfquery"};

bool IsWordPart(CharacterClass kind) {
  return kind == CharacterClass::kLetter || kind == CharacterClass::kDigit;
}

bool IsAllCapitals(std::string_view word) {
  std::size_t letters = 0;
  for (std::size_t i = 0; i < word.size();) {
    const DecodedChar character = DecodeUtf8(word, i);
    i += std::max<std::size_t>(character.length, 1);
    if (ClassOf(character.codePoint) != CharacterClass::kLetter) continue;
    if (FoldCase(character.codePoint) == character.codePoint) return false;
    ++letters;
  }
  return letters > 1;
}

std::size_t CountLetters(std::string_view word) {
  std::size_t letters = 0;
  for (std::size_t i = 0; i < word.size();) {
    const DecodedChar character = DecodeUtf8(word, i);
    if (ClassOf(character.codePoint) == CharacterClass::kLetter) ++letters;
    i += std::max<std::size_t>(character.length, 1);
  }
  return letters;
}

}  // namespace

std::optional<PageWord> PageWords::Next() {
  while (FindWordStart()) {
    const std::size_t start = position_;
    const Token token = ReadToken(start);
    position_ = token.end;
    if (IsWord(token)) return PageWord{start, token.end - start, token.text, delimiter_};
  }
  return std::nullopt;
}

bool PageWords::IsWord(const Token& token) const {
  if (!token.hasLetter || token.text.size() > kLongestWord) return false;
  if (token.hasDigit && options_.passOverDigits) return false;
  if (options_.passOverCapitals && IsAllCapitals(token.text)) return false;
  return options_.leastLetters == 0 || CountLetters(token.text) >= options_.leastLetters;
}

// --- The way to the next word ---

bool PageWords::FindWordStart() {
  for (;;) {
    while (position_ < limit_) {
      const char c = page_[position_];
      if (c == '<' && options_.pageTextOnly) {
        PassMarkup();
        continue;
      }
      if (position_ >= chunkEnd_ && !IsAddressGap(page_, position_) && PassAddress()) continue;
      const Piece piece = Read(position_);
      if (IsWordPart(piece.kind)) return true;
      position_ += piece.length;
    }
    if (!LeaveValue()) return false;
  }
}

// From the end of a value back into its tag.
bool PageWords::LeaveValue() {
  if (delimiter_ == '\0') return false;
  delimiter_ = '\0';
  position_ = valueBehind_;
  limit_ = page_.size();
  PassTag();
  return true;
}

void PageWords::PassMarkup() {
  const bool inValue = delimiter_ != '\0';
  const std::size_t behind =
      inValue ? markup_.BehindServerCode(position_) : markup_.BehindSpecial(position_);
  if (behind != PageMarkup::kNone) {
    position_ = std::min(behind, limit_);
  } else if (!inValue && markup_.BeginsTag(position_)) {
    BeginTag();
  } else {
    ++position_;
  }
}

void PageWords::BeginTag() {
  const bool isEnd = page_[position_ + 1] == '/';
  const std::size_t start = position_ + (isEnd ? 2 : 1);
  position_ = start;
  while (position_ < limit_ && !IsSpace(page_[position_]) && page_[position_] != '/' &&
         page_[position_] != '>') {
    ++position_;
  }
  contents_ = {};
  const std::string_view name = page_.substr(start, position_ - start);
  for (const std::string_view element : kWithoutText) {
    if (!isEnd && IsName(name, element)) contents_ = element;
  }
  PassTag();
}

// Goes on in a tag, up to the text of a value or to the tag's end.
void PageWords::PassTag() {
  while (position_ < limit_) {
    const char c = page_[position_];
    const std::size_t behind = c == '<' ? markup_.BehindServerCode(position_) : PageMarkup::kNone;
    if (c == '>') {
      ++position_;
      return PassContents();
    }
    if (behind != PageMarkup::kNone) {
      position_ = behind;
    } else if (IsSpace(c) || c == '/') {
      ++position_;
    } else if (PassAttribute()) {
      return;
    }
  }
}

// True when its value is text: then the words are read from there.
bool PageWords::PassAttribute() {
  const auto skipSpace = [this](std::size_t at) {
    while (at < limit_ && IsSpace(page_[at])) ++at;
    return at;
  };
  const std::size_t start = position_++;  // An equals sign in front belongs to the name.
  while (position_ < limit_ && !IsSpace(page_[position_]) && page_[position_] != '/' &&
         page_[position_] != '>' && page_[position_] != '=') {
    ++position_;
  }
  const std::string_view name = page_.substr(start, position_ - start);
  const std::size_t equals = skipSpace(position_);
  if (equals >= limit_ || page_[equals] != '=') return false;

  const PageMarkup::Value value = markup_.ReadValue(skipSpace(equals + 1));
  position_ = value.behind;
  if (!IsName(name, "alt") && !IsName(name, "title")) return false;
  position_ = value.start;
  limit_ = value.end;
  valueBehind_ = value.behind;
  delimiter_ = value.delimiter;
  return true;
}

void PageWords::PassContents() {
  if (!contents_.empty()) position_ = markup_.EndOfContents(position_, contents_);
  contents_ = {};
}

bool PageWords::PassAddress() {
  const AddressScan scan = ScanAddress(page_.substr(0, limit_), position_);
  chunkEnd_ = scan.end;
  if (scan.isAddress) position_ = scan.end;
  return scan.isAddress;
}

// --- Words ---

PageWords::Piece PageWords::Read(std::size_t position) const {
  Piece piece;
  const char c = page_[position];
  if (static_cast<unsigned char>(c) >= 0x80) {
    const DecodedChar character = DecodeUtf8(page_.substr(0, limit_), position);
    if (character.length == 0) return piece;
    piece.codePoint = character.codePoint;
    piece.length = character.length;
  } else if (c == '&') {
    const CharacterReference reference = ReadReference(page_.substr(0, limit_), position);
    if (reference.length == 0) return piece;
    piece.codePoint = reference.codePoint;
    piece.length = reference.length;
    piece.isReference = true;
  } else {
    piece.codePoint = static_cast<unsigned char>(c);
    if (IsAsciiLetter(c)) {
      piece.kind = CharacterClass::kLetter;
      return piece;
    }
  }
  piece.kind = ClassOf(piece.codePoint);
  return piece;
}

PageWords::Token PageWords::ReadToken(std::size_t start) {
  Token token;
  bool asWritten = true;
  token.end = start;
  for (std::size_t i = start; i < limit_;) {
    const Piece piece = Read(i);
    const std::size_t behind = i + piece.length;
    const bool isHyphen = piece.kind == CharacterClass::kSoftHyphen;
    if (piece.kind == CharacterClass::kApostrophe || piece.kind == CharacterClass::kJoiner) {
      if (behind >= limit_ || Read(behind).kind != CharacterClass::kLetter) break;
    } else if (!isHyphen && piece.kind != CharacterClass::kMark && !IsWordPart(piece.kind)) {
      break;
    }
    if (asWritten && (isHyphen || piece.isReference)) {
      spelling_.assign(page_, start, i - start);
      asWritten = false;
    }
    if (!asWritten && !isHyphen) AppendUtf8(spelling_, piece.codePoint);
    token.hasLetter |= piece.kind == CharacterClass::kLetter;
    token.hasDigit |= piece.kind == CharacterClass::kDigit;
    i = behind;
    if (!isHyphen) token.end = i;
  }
  token.text = asWritten ? page_.substr(start, token.end - start) : std::string_view(spelling_);
  return token;
}

// --- Writing ---

std::string WrittenAs(std::string_view text, const PageWord& word, std::string_view written) {
  const bool hasReferences = written.find('&') != std::string_view::npos;
  std::string result;
  for (std::size_t i = 0; i < text.size();) {
    const DecodedChar character = DecodeUtf8(text, i);
    const std::size_t length = std::max<std::size_t>(character.length, 1);
    const char c = text[i];
    const bool endsValue = word.delimiter == ' ' ? IsSpace(c) || c == '>' || c == '"' || c == '\''
                                                 : word.delimiter != '\0' && c == word.delimiter;
    const bool isForeign = character.length > 1 && hasReferences;
    if (endsValue || isForeign) {
      AppendReference(result, character.codePoint);
    } else {
      result += text.substr(i, length);
    }
    i += length;
  }
  return result;
}

}  // namespace tagsmith::integration
