#pragma once

#include <cstddef>

namespace tagsmith {

/// A piece of a text, in bytes.
struct TextSpan {
  std::size_t start = 0;
  std::size_t length = 0;

  std::size_t End() const { return start + length; }
  bool operator==(const TextSpan&) const = default;
};

}  // namespace tagsmith
