#pragma once

#include <string>
#include <string_view>

#include "services/rtf/Symbols.h"

namespace tagsmith::rtf {

enum class FieldKind { kOther, kLink, kSymbol };

/// What a field's instruction asks for.
struct FieldMeaning {
  FieldKind kind = FieldKind::kOther;
  std::string target;      ///< Of a link: an address, or "#" and a bookmark, or both.
  char32_t character = 0;  ///< Of a symbol: its number in the font.
  bool isUnicode = false;  ///< Whether `character` is a code point already.
  std::string font;        ///< Of a symbol; may be empty.
};

/// Reads an instruction such as `HYPERLINK "page.html" \l "top"` (Office Open XML, ECMA-376 part 1,
/// section 17.16). Links without a target and symbols without a number count as `kOther`.
FieldMeaning ReadInstruction(std::string_view instruction);

}  // namespace tagsmith::rtf
