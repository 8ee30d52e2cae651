#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "services/host/PathLookup.h"

namespace tagsmith {

/// The bytes of the file at `found`, or nothing when it has `limit` bytes or more, be it that it
/// grows meanwhile. Throws `Error`; kNotARegularFile for what is not one, without opening it.
std::optional<std::string> ReadRegularFile(const FoundPath& found, std::size_t limit);

}  // namespace tagsmith
