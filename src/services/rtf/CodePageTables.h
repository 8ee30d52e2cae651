#pragma once

#include <cstddef>

namespace tagsmith::rtf {

/// The characters of a code page's bytes from 0x80 on; U+FFFD where a byte has none.
struct CodePageTable {
  int codePage;
  char16_t upperHalf[129];  ///< The last is the literal's end.
};

constexpr std::size_t kCodePageCount = 44;

/// In the order of their numbers.
extern const CodePageTable kCodePageTables[kCodePageCount];

}  // namespace tagsmith::rtf
