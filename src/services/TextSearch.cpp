#include "services/TextSearch.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "services/CaseFoldTable.h"
#include "services/FoldedChar.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

constexpr char32_t kEndOfUnicode = 0x110000;

// How common each folded ASCII character is in pages, 0 for those that are hardly there.
constexpr std::array<unsigned char, 0x80> kCommonness = [] {
  constexpr std::string_view kRarestFirst = "jqz~^`@$\\|{}%*+?![]_#&';:,kxv98765432()10y-wbgfpmu";
  constexpr std::string_view kThenCommon = "ch.\n\rd\"=lsr/noi<>ate ";
  std::array<unsigned char, 0x80> ranks{};
  unsigned char rank = 0;
  for (const std::string_view part : {kRarestFirst, kThenCommon}) {
    for (const char character : part) ranks[static_cast<unsigned char>(character)] = ++rank;
  }
  return ranks;
}();

int Commonness(char32_t character) {
  if (character >= kEndOfUnicode) return 0;
  // A text in another script has as much of each letter as an English one.
  return kCommonness[character < 0x80 ? character : U'm'];
}

// The bytes in which the characters end that fold to `folded`.
std::string EndingsOf(char32_t folded) {
  if (folded >= kEndOfUnicode) return {static_cast<char>(folded - kEndOfUnicode)};
  std::string endings;
  const auto add = [&endings](char32_t character) {
    std::string bytes;
    AppendUtf8(bytes, character);
    if (endings.find(bytes.back()) == std::string::npos) endings += bytes.back();
  };
  add(folded);
  for (const CaseFoldRun& run : CaseFoldRuns()) {
    const auto unfolded = static_cast<char32_t>(static_cast<std::int32_t>(folded) - run.offset);
    if (unfolded >= run.first && unfolded <= run.last && FoldCase(unfolded) == folded) {
      add(unfolded);
    }
  }
  return endings;
}

// Whether all characters that fold to `folded` are ASCII. The exceptions are the Kelvin sign and
// the long s.
bool IsAlwaysAscii(char32_t folded) { return folded < 0x80 && folded != U'k' && folded != U's'; }

constexpr unsigned char kCaseBit = 0x20;
constexpr std::uint64_t kEachByte = 0x0101010101010101U;

std::uint64_t EightBytes(std::string_view text, std::size_t position) {
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, text.data() + position, sizeof bytes);
  return bytes;
}

// The high bit of each byte that is 0, and perhaps of one above it.
std::uint64_t ZeroBytes(std::uint64_t bytes) {
  return (bytes - kEachByte) & ~bytes & (kEachByte * 0x80U);
}

std::size_t StartOfCharacter(std::string_view text, std::size_t position) {
  const bool isAscii = static_cast<unsigned char>(text[position]) < 0x80;
  return isAscii ? position : SnapToCharacter(text, position);
}

}  // namespace

TextSearch::TextSearch(std::string_view pattern) {
  pattern_.reserve(pattern.size());
  for (std::size_t i = 0; i < pattern.size();) {
    const FoldedChar character = ReadFolded(pattern, i);
    pattern_ += character.value;
    i += character.length;
  }
  if (IsEmpty()) return;
  ComputeBorders();
  ChooseAnchor();
}

void TextSearch::ComputeBorders() {
  borders_.resize(pattern_.size() + 1);
  for (std::size_t n = 1; n < pattern_.size(); ++n) {
    borders_[n + 1] = static_cast<std::uint32_t>(Advance(borders_[n], pattern_[n]));
  }
}

// Two neighbours that are one byte each are found fastest, several places at a time.
void TextSearch::ChooseAnchor() {
  const auto least = std::ranges::min_element(pattern_, {}, Commonness);
  anchor_ = static_cast<std::size_t>(least - pattern_.begin());
  anchorEndings_ = EndingsOf(*least);

  int leastOfPair = std::numeric_limits<int>::max();
  for (std::size_t i = 1; i < pattern_.size(); ++i) {
    const int commonness = Commonness(pattern_[i - 1]) + Commonness(pattern_[i]);
    if (!IsAlwaysAscii(pattern_[i - 1]) || !IsAlwaysAscii(pattern_[i])) continue;
    if (commonness >= leastOfPair) continue;
    leastOfPair = commonness;
    anchor_ = i;
  }
  hasPair_ = leastOfPair < std::numeric_limits<int>::max();
}

// --- Search by the anchor ---

std::optional<TextSearch::Match> TextSearch::Find(std::string_view text, std::size_t from) const {
  // Characters that are found again and again without a match around them would cost the pattern's
  // length each time.
  constexpr std::size_t kPatience = 256;
  if (from < text.size() && StartOfCharacter(text, from) < from) {
    from = StartOfCharacter(text, from);
    from += ReadFolded(text, from).length;
  }
  if (from >= text.size()) return std::nullopt;
  if (IsEmpty()) return Match{from, 0};

  std::size_t work = 0;
  for (std::size_t place = NextAnchor(text, from + anchor_); place < text.size();
       place = NextAnchor(text, place + 1)) {
    std::size_t start = StartOfCharacter(text, place);
    std::size_t end = start;
    if (MatchesBehind(text, end, work) && MatchesBefore(text, from, start, work)) {
      return Match{start, end - start};
    }
    if (work > kPatience + 2 * (place - from)) return FindStepwise(text, from);
  }
  return std::nullopt;
}

// The next byte that is one of the anchor's endings, or the end of the text. Each ending is looked
// for piece by piece: one that the text does not have must not be looked for to the end of the text
// every time that the other is found.
std::size_t TextSearch::NextAnchor(std::string_view text, std::size_t from) const {
  if (hasPair_) return NextPair(text, from);
  constexpr std::size_t kLargestPiece = 4096;
  for (std::size_t piece = 64; from < text.size(); piece = std::min(2 * piece, kLargestPiece)) {
    const std::string_view rest = text.substr(from, piece);
    std::size_t next = rest.size();
    for (const char ending : anchorEndings_) {
      next = std::min(next, rest.substr(0, next).find(ending));
    }
    from += next;
    if (next < rest.size()) break;
  }
  return from;
}

// The same for an anchor and the character in front of it. Bytes are compared without the bit that
// tells the cases of a letter apart; a few others that fit as well are sorted out later.
std::size_t TextSearch::NextPair(std::string_view text, std::size_t from) const {
  const auto first = static_cast<unsigned char>(pattern_[anchor_ - 1]);
  const auto second = static_cast<unsigned char>(pattern_[anchor_]);
  const std::uint64_t firsts = kEachByte * (first | kCaseBit);
  const std::uint64_t seconds = kEachByte * (second | kCaseBit);
  from = std::max<std::size_t>(from, 1);
  for (; from + sizeof firsts <= text.size(); from += sizeof firsts) {
    const std::uint64_t before = EightBytes(text, from - 1) | kEachByte * kCaseBit;
    const std::uint64_t here = EightBytes(text, from) | kEachByte * kCaseBit;
    if ((ZeroBytes(before ^ firsts) & ZeroBytes(here ^ seconds)) != 0) break;
  }
  const auto fits = [text](std::size_t position, unsigned char byte) {
    return (static_cast<unsigned char>(text[position]) | kCaseBit) == (byte | kCaseBit);
  };
  while (from < text.size() && !(fits(from, second) && fits(from - 1, first))) ++from;
  return from;
}

// Whether the pattern goes on from its anchor at `position` to its end, which becomes the position.
bool TextSearch::MatchesBehind(std::string_view text, std::size_t& position,
                               std::size_t& work) const {
  for (std::size_t i = anchor_; i < pattern_.size(); ++i) {
    if (position >= text.size()) return false;
    ++work;
    const FoldedChar character = ReadFolded(text, position);
    if (character.value != pattern_[i]) return false;
    position += character.length;
  }
  return true;
}

// Whether the pattern up to its anchor stands in front of `position`, not before `from`; its start
// becomes the position.
bool TextSearch::MatchesBefore(std::string_view text, std::size_t from, std::size_t& position,
                               std::size_t& work) const {
  for (std::size_t i = anchor_; i > 0; --i) {
    if (position <= from) return false;
    ++work;
    position = StartOfCharacter(text, position - 1);
    if (ReadFolded(text, position).value != pattern_[i - 1]) return false;
  }
  return true;
}

// --- Search character by character (Knuth, Morris, Pratt: Fast Pattern Matching in Strings, 1977)

// How many characters of the pattern stand at the end of a text whose end held `matched` of them,
// less than all, and which goes on with `next`.
std::size_t TextSearch::Advance(std::size_t matched, char32_t next) const {
  while (pattern_[matched] != next) {
    if (matched == 0) return 0;
    matched = borders_[matched];
  }
  return matched + 1;
}

std::optional<TextSearch::Match> TextSearch::FindStepwise(std::string_view text,
                                                          std::size_t from) const {
  std::size_t matched = 0;
  std::size_t end = from;
  while (matched < pattern_.size()) {
    if (end >= text.size()) return std::nullopt;
    const FoldedChar character = ReadFolded(text, end);
    matched = Advance(matched, character.value);
    end += character.length;
  }
  std::size_t start = end;
  for (std::size_t i = 0; i < matched; ++i) start = StartOfCharacter(text, start - 1);
  return Match{start, end - start};
}

std::size_t TextSearch::BegunAtEnd(std::string_view text) const {
  if (IsEmpty()) return 0;
  std::size_t matched = 0;
  for (std::size_t position = 0; position < text.size();) {
    const FoldedChar character = ReadFolded(text, position);
    matched = Advance(matched, character.value);
    if (matched == pattern_.size()) matched = borders_[matched];
    position += character.length;
  }
  return matched;
}

std::optional<TextSearch::Completion> TextSearch::FindBegun(std::size_t begun,
                                                            std::string_view text,
                                                            std::size_t from) const {
  std::size_t matched = begun;
  std::size_t end = from;
  // As long as what has matched is longer than what was read, it began in front.
  for (std::size_t read = 0; matched > read && end < text.size();) {
    const FoldedChar character = ReadFolded(text, end);
    matched = Advance(matched, character.value);
    end += character.length;
    ++read;
    if (matched == pattern_.size()) return Completion{matched - read, end};
  }
  return std::nullopt;
}

}  // namespace tagsmith
