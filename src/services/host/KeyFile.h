#pragma once

#include <string>
#include <string_view>
#include <vector>

// Key files: the Desktop Entry Specification, "Basic format of the file". Desktop entries and lists
// of associations are such files. All texts are UTF-8, lines end at LF; nothing here fails, lines
// that are none of the format are passed over.

namespace tagsmith {

/// The value of `key` in the group `[group]`, escapes as they stand; empty when there is none.
std::string_view KeyFileValue(std::string_view text, std::string_view group, std::string_view key);

/// The text with that value, a single line, in place of the present one, in every line that sets
/// it. A key, and a group, that is not there yet is added. All else stays byte for byte.
std::string WithKeyFileValue(std::string_view text, std::string_view group, std::string_view key,
                             std::string_view value);

/// The entries of a list value, which end in semicolons; empty ones are left out. For names that
/// hold no escapes.
std::vector<std::string> KeyFileList(std::string_view value);

/// The list value of those entries.
std::string KeyFileListValue(const std::vector<std::string>& entries);

/// The text of a value of the type string: "Possible value types".
std::string UnescapeKeyFileText(std::string_view value);
/// The value that stands for the text. Line breaks, tabs and a blank at the start keep.
std::string EscapeKeyFileText(std::string_view text);

}  // namespace tagsmith
