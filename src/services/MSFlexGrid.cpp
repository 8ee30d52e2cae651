#include "services/MSFlexGrid.h"

#include <algorithm>

#include "services/Form.h"

namespace tagsmith {
namespace {

std::size_t CellCount(int rows, int columns) {
  return static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
}

}  // namespace

MSFlexGrid::MSFlexGrid(Form& form, std::string name, int rows, int columns)
    : Control(form, ControlKind::kMSFlexGrid, std::move(name)),
      rows_(rows),
      columns_(columns),
      cells_(CellCount(rows, columns)) {}

std::size_t MSFlexGrid::CellIndex(int row, int column) const {
  return CellCount(row, columns_) + static_cast<std::size_t>(column);
}

void MSFlexGrid::Resize(int rows, int columns) {
  rows = std::max(rows, 1);
  columns = std::max(columns, 1);
  std::vector<std::string> cells(CellCount(rows, columns));
  for (int row = 0; row < std::min(rows, rows_); ++row) {
    for (int column = 0; column < std::min(columns, columns_); ++column) {
      cells[CellCount(row, columns) + static_cast<std::size_t>(column)] =
          std::move(cells_[CellIndex(row, column)]);
    }
  }
  rows_ = rows;
  columns_ = columns;
  cells_ = std::move(cells);
  const bool currentHasGone = row_ >= rows_ || column_ >= columns_;
  row_ = std::min(row_, rows_ - 1);
  column_ = std::min(column_, columns_ - 1);
  Tell(Property::kLimits);
  if (currentHasGone) Raise(onSelChange);
}

void MSFlexGrid::SetRows(int rows) { Resize(rows, columns_); }
void MSFlexGrid::SetCols(int columns) { Resize(rows_, columns); }

void MSFlexGrid::SetRow(int row) {
  if (row < 0 || row >= rows_) return;
  row_ = row;
  Tell(Property::kSelection);
}

void MSFlexGrid::SetCol(int column) {
  if (column < 0 || column >= columns_) return;
  column_ = column;
  Tell(Property::kSelection);
}

const std::string& MSFlexGrid::TextAt(int row, int column) const {
  return cells_[CellIndex(row, column)];
}

void MSFlexGrid::SetText(std::string_view text) {
  cells_[CellIndex(row_, column_)] = text;
  Tell(Property::kText);
}

void MSFlexGrid::Select(int row, int column) {
  if (!TakesInput() || row < 0 || row >= rows_ || column < 0 || column >= columns_) return;
  row_ = row;
  column_ = column;
  Tell(Property::kSelection);
  Raise(onSelChange);
}

}  // namespace tagsmith
