#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Key files: the Desktop Entry Specification, "Basic format of the file". Desktop entries and lists
// of associations are such files. All texts are UTF-8, lines end at LF; nothing here fails, lines
// that are none of the format are passed over.

namespace tagsmith {

/// The values of `key` in the groups `[group]`, in the order of their lines, escapes as they stand.
/// There should be one; where there are more, most programs go by the last, some by the first.
std::vector<std::string_view> KeyFileValues(std::string_view text, std::string_view group,
                                            std::string_view key);

/// The last of these; empty when there is none.
std::string_view KeyFileValue(std::string_view text, std::string_view group, std::string_view key);

/// The text after `change` has been at the list, as `KeyFileList` gives it, of each line that sets
/// `key` in `[group]`. Where none does, what it makes of an empty list is added, unless it is left
/// empty. All else, and a line whose list is left as it is, stays byte for byte.
std::string WithKeyFileList(std::string_view text, std::string_view group, std::string_view key,
                            const std::function<void(std::vector<std::string>&)>& change);

/// The entries of a list value, which end in semicolons; empty ones are left out. For names that
/// hold no escapes.
std::vector<std::string> KeyFileList(std::string_view value);

/// The text of a value of the type string: "Possible value types".
std::string UnescapeKeyFileText(std::string_view value);
/// The value that stands for the text. Line breaks, tabs and a blank at the start keep.
std::string EscapeKeyFileText(std::string_view text);

}  // namespace tagsmith
