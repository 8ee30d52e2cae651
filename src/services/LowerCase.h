#pragma once

#include <string>
#include <string_view>

namespace tagsmith {

/// `text` (UTF-8) with every letter in lower case: the simple mapping of The Unicode Standard,
/// section 3.13 (UnicodeData.txt, field 13), one character for one. Bytes that are no UTF-8 stay.
std::string LowerCase(std::string_view text);

}  // namespace tagsmith
