#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tagsmith {

/// The code point that stands for `codePoint` where case does not count: simple case folding (The
/// Unicode Standard, section 5.18; CaseFolding.txt, statuses C and S).
char32_t FoldCase(char32_t codePoint);

/// `text` (UTF-8) with every character folded. Bytes that are no UTF-8 stay as they are.
std::string FoldCase(std::string_view text);

/// Orders two texts (UTF-8) without regard to case, by code point; texts that are equal but for
/// case are ordered by their own bytes, so that the order is total.
bool LessWithoutCase(std::string_view left, std::string_view right);

/// Sorts by `LessWithoutCase`, in which equal texts are the same texts. Folds each text once.
void SortWithoutCase(std::vector<std::string>& texts);

bool EqualWithoutCase(std::string_view left, std::string_view right);

}  // namespace tagsmith
