#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "services/rtf/TableBuffer.h"
#include "services/rtf/TableGrid.h"

namespace tagsmith::rtf {

/// A cell in its place in the table, with what was merged into it.
struct PlacedCell {
  std::size_t column = 0;
  std::size_t columns = 1;
  std::size_t rows = 1;
  std::size_t firstPiece = 0;  ///< The buffered cells with its content, linked by `nextPiece`.
  std::size_t lastPiece = 0;
  bool hasText = false;
  const CellLook* look = nullptr;  ///< Null for a cell that the row's format does not tell of.
};

struct PlacedRow {
  std::size_t firstCell = 0;
  std::size_t cellCount = 0;
  std::size_t begin = 0;  ///< The columns that it takes up, cells merged from above included.
  std::size_t end = 0;
  bool isHeader = false;
};

/// Where the cells of a table stand: columns from the edges of all rows, merged cells as one.
class TableLayout {
 public:
  /// `table` outlives the object.
  explicit TableLayout(const BufferedTable& table);

  const TableGrid& Grid() const { return grid_; }
  std::size_t ColumnCount() const { return columnCount_; }
  const std::vector<PlacedRow>& Rows() const { return rows_; }
  const PlacedCell& CellAt(std::size_t place) const { return cells_[place]; }

  /// The buffered cell whose content follows that of another in the same placed cell.
  std::size_t NextPiece(std::size_t piece) const { return nextPiece_[piece]; }

 private:
  /// What a row leaves to the one below: where the cell that may go on there was placed.
  struct Above {
    std::size_t column = 0;
    std::size_t columns = 1;
    std::size_t place = 0;
    bool isMerged = false;
  };

  void PlaceRow(const BufferedRow& row, bool isHeader);
  std::vector<PlacedCell> CellsOf(const BufferedRow& row);
  std::vector<const Above*> MergedInto(const std::vector<PlacedCell>& cells) const;
  void AddPiece(PlacedCell& cell, std::size_t piece);
  void Join(PlacedCell& cell, const PlacedCell& other);

  const BufferedTable& table_;
  TableGrid grid_;
  std::size_t columnCount_ = 0;
  std::vector<PlacedCell> cells_;
  std::vector<PlacedRow> rows_;
  std::vector<std::size_t> nextPiece_;
  std::vector<Above> above_;
};

}  // namespace tagsmith::rtf
