#include "services/rtf/TableGrid.h"

#include <algorithm>
#include <cstdint>

namespace tagsmith::rtf {
namespace {

constexpr int kTolerance = 20;              // A point.
constexpr std::size_t kLargestSpan = 1000;  // HTML Standard, section 4.9.11, attribute colspan.

}  // namespace

TableGrid::TableGrid(std::vector<int> edges) {
  std::sort(edges.begin(), edges.end());
  for (const int edge : edges) {
    if (edges_.empty() || edge - std::int64_t{edges_.back()} > kTolerance) edges_.push_back(edge);
  }
  if (edges_.size() > kLargestSpan) edges_.clear();
}

std::size_t TableGrid::ColumnsBefore(int edge) const {
  const auto after = std::upper_bound(edges_.begin(), edges_.end(), edge);
  return after == edges_.begin() ? 0 : static_cast<std::size_t>(after - edges_.begin()) - 1;
}

}  // namespace tagsmith::rtf
