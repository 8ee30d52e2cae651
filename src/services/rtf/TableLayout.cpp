#include "services/rtf/TableLayout.h"

#include <algorithm>
#include <utility>

namespace tagsmith::rtf {
namespace {

TableGrid GridOf(const BufferedTable& table) {
  std::vector<int> edges;
  for (const RowLook& look : table.looks) {
    if (look.cells.empty()) continue;
    edges.push_back(look.format.leftEdge);
    for (const CellLook& cell : look.cells) edges.push_back(cell.rightEdge);
  }
  return TableGrid(std::move(edges));
}

}  // namespace

TableLayout::TableLayout(const BufferedTable& table)
    : table_(table), grid_(GridOf(table)), nextPiece_(table.cells.size(), 0) {
  columnCount_ = grid_.ColumnCount();
  bool isHead = true;
  for (const BufferedRow& row : table.rows) {
    const bool wasHead = isHead;
    isHead = isHead && table.looks[row.look].format.isHeader;
    if (wasHead != isHead) above_.clear();  // No cell reaches from the head into the body.
    PlaceRow(row, isHead);
  }
}

void TableLayout::PlaceRow(const BufferedRow& row, bool isHeader) {
  const std::vector<PlacedCell> cells = CellsOf(row);
  const std::vector<const Above*> merged = MergedInto(cells);
  const bool areAllMerged = std::find(merged.begin(), merged.end(), nullptr) == merged.end();
  std::vector<Above> above;
  PlacedRow placedRow{cells_.size(), 0, cells.front().column,
                      cells.back().column + cells.back().columns, isHeader};
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const PlacedCell& cell = cells[i];
    if (merged[i] != nullptr) {
      PlacedCell& whole = cells_[merged[i]->place];
      Join(whole, cell);
      if (!areAllMerged) ++whole.rows;
      above.push_back({cell.column, cell.columns, merged[i]->place, true});
    } else {
      const bool isMerged = cell.look != nullptr && cell.look->down != Merge::kNone;
      above.push_back({cell.column, cell.columns, cells_.size(), isMerged});
      cells_.push_back(cell);
      ++placedRow.cellCount;
    }
  }
  above_ = std::move(above);
  if (areAllMerged) return;  // HTML has no rows in which no cell begins.
  rows_.push_back(placedRow);
}

// The row's cells side by side, each with the columns up to its right edge.
std::vector<PlacedCell> TableLayout::CellsOf(const BufferedRow& row) {
  const RowLook& look = table_.looks[row.look];
  std::vector<PlacedCell> cells;
  std::size_t column = look.cells.empty() ? 0 : grid_.ColumnsBefore(look.format.leftEdge);
  std::size_t piece = row.firstCell;
  const std::size_t end = row.firstCell + row.cellCount;
  for (std::size_t i = 0; piece < end; ++i) {
    PlacedCell cell;
    cell.column = column;
    std::size_t pieces = 1;
    if (i < look.cells.size()) {
      cell.look = &look.cells[i];
      pieces = cell.look->count;
      const std::size_t right = grid_.ColumnsBefore(cell.look->rightEdge);
      if (right > column) cell.columns = right - column;
    }
    cell.firstPiece = cell.lastPiece = piece;
    cell.hasText = table_.cells[piece].hasText;
    for (++piece; --pieces > 0; ++piece) AddPiece(cell, piece);
    column += cell.columns;
    cells.push_back(cell);
  }
  columnCount_ = std::max(columnCount_, column);
  return cells;
}

// For each of a row's cells that goes on with the one above, what that one left; null for others.
std::vector<const TableLayout::Above*> TableLayout::MergedInto(
    const std::vector<PlacedCell>& cells) const {
  std::vector<const Above*> merged;
  merged.reserve(cells.size());
  auto above = above_.begin();
  for (const PlacedCell& cell : cells) {
    while (above != above_.end() && above->column < cell.column) ++above;
    const bool goesOn = cell.look != nullptr && cell.look->down == Merge::kContinued &&
                        above != above_.end() && above->column == cell.column &&
                        above->columns == cell.columns && above->isMerged;
    merged.push_back(goesOn ? &*above : nullptr);
  }
  return merged;
}

// Empty cells leave nothing in the cell that they are merged into.
void TableLayout::AddPiece(PlacedCell& cell, std::size_t piece) {
  if (!table_.cells[piece].hasText) return;
  if (cell.hasText) {
    nextPiece_[cell.lastPiece] = piece;
  } else {
    cell.firstPiece = piece;
    cell.hasText = true;
  }
  cell.lastPiece = piece;
}

void TableLayout::Join(PlacedCell& cell, const PlacedCell& other) {
  if (!other.hasText) return;
  AddPiece(cell, other.firstPiece);
  cell.lastPiece = other.lastPiece;
}

}  // namespace tagsmith::rtf
