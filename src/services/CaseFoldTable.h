#pragma once

#include <cstdint>
#include <span>

namespace tagsmith {

/// The characters `first`, `first + step` and so on up to `last`, all of which fold by adding
/// `offset` to the code point.
struct CaseFoldRun {
  std::uint32_t first;
  std::uint32_t last;
  std::uint32_t step;
  std::int32_t offset;
};

/// All runs, in rising order, none overlapping another.
std::span<const CaseFoldRun> CaseFoldRuns();

}  // namespace tagsmith
