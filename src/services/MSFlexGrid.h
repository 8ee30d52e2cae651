#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/Control.h"

namespace tagsmith {

/// A grid of texts with one current cell. Rows and columns count from 0. Growing adds empty cells;
/// shrinking drops those outside and, if the current cell was one of them, selects another.
class MSFlexGrid : public Control {
 public:
  MSFlexGrid(Form& form, std::string name, int rows, int columns);

  int Rows() const { return rows_; }
  int Cols() const { return columns_; }
  void SetRows(int rows);
  void SetCols(int columns);
  int Row() const { return row_; }
  int Col() const { return column_; }
  /// Make another cell the current one, without an event; what lies outside is passed over.
  void SetRow(int row);
  void SetCol(int column);
  /// The text of the current cell.
  const std::string& Text() const { return TextAt(row_, column_); }
  void SetText(std::string_view text);
  const std::string& TextAt(int row, int column) const;

  /// Another cell has been selected: by the user, or because the current one has gone.
  Event<> onSelChange;

  /// The user selects a cell, by mouse or keyboard.
  void Select(int row, int column);

 private:
  void Resize(int rows, int columns);
  std::size_t CellIndex(int row, int column) const;

  int rows_;
  int columns_;
  int row_ = 0;
  int column_ = 0;
  std::vector<std::string> cells_;
};

}  // namespace tagsmith
