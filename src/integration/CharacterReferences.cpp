#include "integration/CharacterReferences.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace tagsmith::integration {
namespace {

constexpr std::size_t kLongestName = 32;
constexpr std::size_t kMostDigits = 12;
constexpr char32_t kLatin1 = 0xA0;
constexpr char32_t kLatinExtendedA = 0x100;

// From U+00A0 on, in the order of the code points.
constexpr std::array<std::string_view, 96> kLatin1Names = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",
    "copy",   "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn",
    "sup2",   "sup3",   "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",
    "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde",
    "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave",
    "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde",
    "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",
    "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil",
    "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",   "eth",
    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
    "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

// From U+0100 on; empty for a letter without a name (HTML, section 13.5).
constexpr std::array<std::string_view, 127> kExtendedNames = {
    "Amacr",  "amacr",  "Abreve", "abreve", "Aogon",  "aogon",  "Cacute", "cacute", "Ccirc",
    "ccirc",  "Cdot",   "cdot",   "Ccaron", "ccaron", "Dcaron", "dcaron", "Dstrok", "dstrok",
    "Emacr",  "emacr",  "",       "",       "Edot",   "edot",   "Eogon",  "eogon",  "Ecaron",
    "ecaron", "Gcirc",  "gcirc",  "Gbreve", "gbreve", "Gdot",   "gdot",   "Gcedil", "",
    "Hcirc",  "hcirc",  "Hstrok", "hstrok", "Itilde", "itilde", "Imacr",  "imacr",  "",
    "",       "Iogon",  "iogon",  "Idot",   "inodot", "IJlig",  "ijlig",  "Jcirc",  "jcirc",
    "Kcedil", "kcedil", "kgreen", "Lacute", "lacute", "Lcedil", "lcedil", "Lcaron", "lcaron",
    "Lmidot", "lmidot", "Lstrok", "lstrok", "Nacute", "nacute", "Ncedil", "ncedil", "Ncaron",
    "ncaron", "napos",  "ENG",    "eng",    "Omacr",  "omacr",  "",       "",       "Odblac",
    "odblac", "OElig",  "oelig",  "Racute", "racute", "Rcedil", "rcedil", "Rcaron", "rcaron",
    "Sacute", "sacute", "Scirc",  "scirc",  "Scedil", "scedil", "Scaron", "scaron", "Tcedil",
    "tcedil", "Tcaron", "tcaron", "Tstrok", "tstrok", "Utilde", "utilde", "Umacr",  "umacr",
    "Ubreve", "ubreve", "Uring",  "uring",  "Udblac", "udblac", "Uogon",  "uogon",  "Wcirc",
    "wcirc",  "Ycirc",  "ycirc",  "Yuml",   "Zacute", "zacute", "Zdot",   "zdot",   "Zcaron",
    "zcaron"};

// From U+0391 and U+03B1 on; there is no capital letter in the place of the final sigma.
constexpr std::array<std::string_view, 25> kGreekNames = {
    "alpha", "beta",   "gamma",   "delta", "epsilon", "zeta",    "eta",  "theta", "iota",
    "kappa", "lambda", "mu",      "nu",    "xi",      "omicron", "pi",   "rho",   "sigmaf",
    "sigma", "tau",    "upsilon", "phi",   "chi",     "psi",     "omega"};

struct Name {
  std::string_view text;
  char32_t codePoint;
};

constexpr Name kOtherNames[] = {{"amp", '&'},    {"lt", '<'},      {"gt", '>'},
                                {"quot", '"'},   {"apos", '\''},   {"rsquo", 0x2019},
                                {"fnof", 0x192}, {"zwnj", 0x200C}, {"zwj", 0x200D}};
constexpr std::size_t kWithoutSemicolon = 4;  // The first ones of these.

// The characters of Windows-1252 from 0x80 on that are letters or apostrophes; 0 for the others.
constexpr std::array<std::uint16_t, 32> kWindows = {
    0, 0, 0,      0x192, 0, 0, 0, 0, 0, 0, 0x160, 0, 0x152, 0, 0x17D, 0,
    0, 0, 0x2019, 0,     0, 0, 0, 0, 0, 0, 0x161, 0, 0x153, 0, 0x17E, 0x178};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsAlphanumeric(char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

template <class Names>
char32_t PlaceOf(const Names& names, std::string_view name, char32_t first) {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? 0 : first + static_cast<char32_t>(found - names.begin());
}

char32_t GreekLetter(std::string_view name) {
  constexpr char32_t kSmallAlpha = 0x3B1;
  constexpr char32_t kCapitals = 0x20;
  if (const char32_t letter = PlaceOf(kGreekNames, name, kSmallAlpha)) return letter;
  if (name.empty() || name.front() < 'A' || name.front() > 'Z') return 0;
  std::string small(name);
  small.front() = static_cast<char>(small.front() + ('a' - 'A'));
  const char32_t letter = PlaceOf(kGreekNames, small, kSmallAlpha);
  return letter == 0 ? 0 : letter - kCapitals;
}

// The names that stand without a semicolon.
char32_t OldName(std::string_view name) {
  for (std::size_t i = 0; i < kWithoutSemicolon; ++i) {
    if (kOtherNames[i].text == name) return kOtherNames[i].codePoint;
  }
  return PlaceOf(kLatin1Names, name, kLatin1);
}

char32_t AnyName(std::string_view name) {
  if (const char32_t character = OldName(name)) return character;
  for (const Name& other : kOtherNames) {
    if (other.text == name) return other.codePoint;
  }
  if (const char32_t letter = PlaceOf(kExtendedNames, name, kLatinExtendedA)) return letter;
  return GreekLetter(name);
}

CharacterReference ReadName(std::string_view text, std::size_t position) {
  const std::string_view rest = text.substr(position + 1, kLongestName + 1);
  const auto end = std::find_if_not(rest.begin(), rest.end(), IsAlphanumeric);
  const std::string_view name = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
  if (name.empty()) return {};
  if (end != rest.end() && *end == ';') return {AnyName(name), name.size() + 2};
  constexpr std::size_t kLongestOldName = 6;
  for (std::size_t length = std::min(name.size(), kLongestOldName); length > 1; --length) {
    if (const char32_t character = OldName(name.substr(0, length))) return {character, length + 1};
  }
  return {};
}

char32_t Character(std::uint64_t number) {
  if (number >= 0x80 && number < kLatin1) return kWindows[number - 0x80];
  const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
  return number > 0x10FFFF || isSurrogate ? 0 : static_cast<char32_t>(number);
}

CharacterReference ReadNumber(std::string_view text, std::size_t position) {
  std::size_t start = position + 2;
  const bool isHex = start < text.size() && (text[start] == 'x' || text[start] == 'X');
  if (isHex) ++start;
  const std::string_view digits = text.substr(std::min(start, text.size()), kMostDigits);
  std::uint64_t number = 0;
  const auto read =
      std::from_chars(digits.data(), digits.data() + digits.size(), number, isHex ? 16 : 10);
  if (read.ptr == digits.data()) return {};
  std::size_t end = start + static_cast<std::size_t>(read.ptr - digits.data());
  if (end < text.size() && text[end] == ';') ++end;
  return {Character(number), end - position};
}

}  // namespace

CharacterReference ReadReference(std::string_view text, std::size_t position) {
  const bool isNumber = position + 1 < text.size() && text[position + 1] == '#';
  return isNumber ? ReadNumber(text, position) : ReadName(text, position);
}

void AppendReference(std::string& text, char32_t codePoint) {
  text += '&';
  if (codePoint >= kLatin1 && codePoint - kLatin1 < kLatin1Names.size()) {
    text += kLatin1Names[codePoint - kLatin1];
  } else {
    text.append("#").append(std::to_string(static_cast<std::uint32_t>(codePoint)));
  }
  text += ';';
}

}  // namespace tagsmith::integration
