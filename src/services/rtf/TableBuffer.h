#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

/// Neighbouring cells of a row format that are one.
struct CellLook {
  std::size_t first = 0;
  std::size_t count = 1;
  int rightEdge = 0;
  Merge down = Merge::kNone;
  std::string style;  ///< The style attribute, or nothing.
};

/// What a row format says, for rows that have as many cells.
struct RowLook {
  RowFormat format;
  std::vector<CellLook> cells;
};

struct BufferedCell {
  std::size_t begin = 0;  ///< Its content's place in `BufferedTable::content`.
  std::size_t end = 0;
  bool hasText = false;
};

struct BufferedRow {
  std::size_t firstCell = 0;
  std::size_t cellCount = 0;
  std::size_t look = 0;
};

struct BufferedTable {
  std::string content;
  std::vector<BufferedCell> cells;
  std::vector<BufferedRow> rows;
  std::vector<RowLook> looks;
};

/// Holds the rows of one table, since only all of them tell its columns. What it keeps grows with
/// the cells that come, whatever the formats of the rows tell.
class TableBuffer {
 public:
  /// Where the markup of the cell in the making goes.
  std::string& Content() { return table_.content; }

  /// Notes that something is to be seen in the cell in the making.
  void SetHasText() { hasText_ = true; }

  void EndCell();
  void EndRow(const RowFormat& format);

  /// The table, with a row that was not ended. Content that was in no cell and no row is there
  /// without a row.
  BufferedTable Take();

 private:
  std::size_t CellsInRow() const { return table_.cells.size() - rowBegin_; }
  void AddCell();
  std::size_t LookOf(const RowFormat& format, std::size_t cellCount);

  BufferedTable table_;
  std::size_t cellBegin_ = 0;
  std::size_t rowBegin_ = 0;  ///< The first cell of the row in the making.
  bool hasText_ = false;
};

}  // namespace tagsmith::rtf
