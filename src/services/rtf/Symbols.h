#pragma once

#include <cstdint>
#include <string_view>

namespace tagsmith::rtf {

/// The character set of a font that has signs in the place of letters.
enum class SymbolSet : std::uint8_t {
  kNone,
  kSymbol,
  kWingdings,
  kOther,  ///< One whose signs have no counterparts here.
};

/// The set of the font `name`; `kNone` for fonts that are not known to have one.
SymbolSet SymbolSetOfFont(std::string_view name);

/// The character for a byte in a font of signs; 0 where there is none. "Symbol" is as in Adobe's
/// table "Symbol Encoding to Unicode", with the extensible pieces at U+239B and on.
char32_t FromSymbolSet(SymbolSet set, unsigned char byte);

}  // namespace tagsmith::rtf
