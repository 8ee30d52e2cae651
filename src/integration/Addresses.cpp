#include "integration/Addresses.h"

#include <array>

#include "integration/PageMarkup.h"
#include "integration/WordCharacters.h"
#include "services/CaseFold.h"
#include "services/Utf8.h"

namespace tagsmith::integration {
namespace {

enum : unsigned char { kPlain, kGap, kTelling };

constexpr std::array<unsigned char, 256> MakeKinds() {
  std::array<unsigned char, 256> kinds{};
  for (std::size_t i = 0; i <= ' '; ++i) kinds[i] = kGap;
  for (const char c : std::string_view("\"'()*,;<=>?[]`{|}!&")) {
    kinds[static_cast<unsigned char>(c)] = kGap;
  }
  for (const char c : std::string_view("./\\:@")) kinds[static_cast<unsigned char>(c)] = kTelling;
  return kinds;
}

constexpr std::array<unsigned char, 256> kKinds = MakeKinds();

unsigned char ByteAt(std::string_view text, std::size_t position) {
  return position < text.size() ? static_cast<unsigned char>(text[position]) : 0;
}

// Letters and digits; all bytes outside ASCII count as such.
bool IsNamePart(unsigned char c) {
  return c >= 0x80 || (c >= '0' && c <= '9') || IsAsciiLetter(static_cast<char>(c));
}

// What runs on to the next blank, whatever characters it holds.
bool IsWebAddress(std::string_view piece) {
  const std::size_t colon = piece.find("://");
  if (colon != std::string_view::npos && colon > 0) return true;
  return piece.size() > 4 && IsName(piece.substr(0, 4), "www.");
}

bool IsAbsolutePath(std::string_view piece) {
  std::size_t slash = piece.starts_with('~') ? 1 : 0;
  while (slash < 2 && ByteAt(piece, slash) == '.') ++slash;
  if (ByteAt(piece, slash) == '/' && IsNamePart(ByteAt(piece, slash + 1))) return true;
  return IsAsciiLetter(piece.front()) && piece.substr(1, 2) == ":/";
}

bool IsCapital(char32_t letter) {
  constexpr char32_t kFinalSigma = 0x3C2;  // Small, though it folds to another letter.
  return FoldCase(letter) != letter && letter != kFinalSigma;
}

// Whether the dot at byte `dot`, which has a character on each side, stands between two sentences.
bool EndsSentence(std::string_view piece, std::size_t dot) {
  if (!IsCapital(DecodeUtf8(piece, dot + 1).codePoint)) return false;
  const char32_t before = DecodeUtf8(piece, SnapToCharacter(piece, dot - 1)).codePoint;
  const CharacterClass kind = ClassOf(before);
  const bool isLetter = kind == CharacterClass::kLetter || kind == CharacterClass::kMark;
  return isLetter && !IsCapital(before);
}

bool IsAddress(std::string_view piece) {
  for (std::size_t i = 0; i < piece.size(); ++i) {
    if (!IsNamePart(ByteAt(piece, i + 1))) continue;
    if (piece[i] == '@' || piece[i] == '\\') return true;
    if (piece[i] != '.' || i == 0) continue;
    if (IsNamePart(ByteAt(piece, i - 1)) && !EndsSentence(piece, i)) return true;
  }
  return IsAbsolutePath(piece);
}

}  // namespace

bool IsAddressGap(std::string_view text, std::size_t position) {
  constexpr unsigned char kLatin1Signs = 0xC2;  // U+0080 to U+00BF
  constexpr unsigned char kPunctuation = 0xE2;  // U+2000 to U+207F with the next byte
  const unsigned char c = ByteAt(text, position);
  if (c < 0x80) return kKinds[c] == kGap;
  return c == kLatin1Signs || (c == kPunctuation && (ByteAt(text, position + 1) & 0xFEU) == 0x80U);
}

AddressScan ScanAddress(std::string_view text, std::size_t position) {
  std::size_t end = position;
  bool tells = false;
  for (; end < text.size() && !IsAddressGap(text, end); ++end) {
    tells |= kKinds[ByteAt(text, end)] == kTelling;
  }
  if (!tells) return {false, end};
  const std::string_view piece = text.substr(position, end - position);
  if (!IsWebAddress(piece)) return {IsAddress(piece), end};
  while (end < text.size() && !IsSpace(text[end]) && text[end] != '<' && text[end] != '>' &&
         text[end] != '"') {
    ++end;
  }
  return {true, end};
}

}  // namespace tagsmith::integration
