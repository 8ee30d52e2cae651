#pragma once

#include <cstddef>
#include <vector>

namespace tagsmith::rtf {

/// The columns that the cells of a table's rows make together: one between each two neighbouring
/// edges. Edges that are nearly the same count as one.
class TableGrid {
 public:
  /// `edges` are twips in any order. More edges than a table of HTML can have columns give a grid
  /// without columns.
  explicit TableGrid(std::vector<int> edges);

  std::size_t ColumnCount() const { return edges_.empty() ? 0 : edges_.size() - 1; }

  /// Twips.
  int WidthOf(std::size_t column) const { return edges_[column + 1] - edges_[column]; }
  int Width() const { return edges_.back() - edges_.front(); }
  int Left() const { return edges_.empty() ? 0 : edges_.front(); }

  /// The number of columns to the left of an edge.
  std::size_t ColumnsBefore(int edge) const;

 private:
  std::vector<int> edges_;
};

}  // namespace tagsmith::rtf
