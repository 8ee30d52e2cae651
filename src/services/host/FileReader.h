#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace tagsmith {

/// The bytes of the file at `hostPath`, or nothing when it has `limit` bytes or more, be it that it
/// grows meanwhile. Throws `Error`; kNotARegularFile for what is not one, without opening it.
std::optional<std::string> ReadRegularFile(const std::string& hostPath, std::size_t limit);

}  // namespace tagsmith
