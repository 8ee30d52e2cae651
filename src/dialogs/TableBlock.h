#pragma once

#include <array>
#include <string>

#include "services/Units.h"

namespace tagsmith::dialogs {

constexpr int kMostTableRows = 20;
constexpr int kMostTableColumns = 20;

/// The texts of a table's cells, as typed. Rows and columns count from 0. A text stays when the
/// table shrinks.
class CellTexts {
 public:
  const std::string& At(int row, int column) const { return texts_.at(Index(row, column)); }
  void Set(int row, int column, std::string text) {
    texts_.at(Index(row, column)) = std::move(text);
  }
  void Erase() { texts_.fill({}); }

 private:
  static std::size_t Index(int row, int column) {
    return static_cast<std::size_t>(row) * kMostTableColumns + static_cast<std::size_t>(column);
  }

  std::array<std::string, std::size_t{kMostTableRows} * kMostTableColumns> texts_;
};

/// The fields of the whole table, as typed.
struct TableFields {
  std::string width;
  std::string borderWidth;
  std::string cellSpacing;
  std::string cellPadding;
  std::string align;
  std::string vAlign;
  Colour background = kWhite;
  std::string caption;
  int rows = 1;
  int columns = 1;
};

/// The indented TABLE block with CR LF between its lines and none behind it. The first row is of
/// header cells.
std::string TableBlock(const TableFields& fields, const CellTexts& cells);

}  // namespace tagsmith::dialogs
