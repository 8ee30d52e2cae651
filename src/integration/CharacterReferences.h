#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tagsmith::integration {

/// A character reference in a page. `length` is in bytes, 0 where there is none; `codePoint` is 0
/// for a name or number that stands for no letter that is known here.
struct CharacterReference {
  char32_t codePoint = 0;
  std::size_t length = 0;
};

/// The reference (HTML 4.01, sections 5.3 and 24) whose ampersand stands at byte `position` of
/// `text`, read as browsers do: the semicolon may be missing behind a number and the names of
/// Latin-1, and the numbers 128 to 159 are Windows-1252. Looks at a few bytes only.
CharacterReference ReadReference(std::string_view text, std::size_t position);

/// Appends the reference for `codePoint`: by name where Latin-1 has the character, else by number.
void AppendReference(std::string& text, char32_t codePoint);

}  // namespace tagsmith::integration
