#pragma once

#include <string>
#include <string_view>

namespace tagsmith::dialogs {

// Lists of empty items. Each line has CR LF behind it; a count below 1 gives no item line. Texts
// are UTF-8 and go in as they are.

enum class ListKind { kOrdered, kUnordered, kDefinition };

/// A list to be filled in from its first item on, which begins kIntoFirstItem bytes behind the
/// list's start.
std::string EmptyList(ListKind kind, int count);

/// From the start of an `EmptyList` into its first item: opening tag, line end, indent, the item's
/// tag.
constexpr std::size_t kIntoFirstItem = 13;

/// A list with room in its items. `start` is the numbering style of an ordered one.
std::string RoomyList(ListKind kind, std::string_view start, int count);

/// A drop-down of empty options.
std::string SelectList(std::string_view name, int count);

}  // namespace tagsmith::dialogs
