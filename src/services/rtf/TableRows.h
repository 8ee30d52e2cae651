#pragma once

#include <array>
#include <bitset>
#include <cstddef>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

/// How many tables may stand in each other; what is deeper counts as the deepest.
constexpr int kDeepestTable = 20;

enum class CellSide { kTop, kRight, kBottom, kLeft };

/// The borders of a row for cells that name none. `kBelow` and `kBetween` are those between rows
/// and between cells.
enum class RowSide { kTop, kRight, kBottom, kLeft, kBelow, kBetween };

/// A row's definition, from \trowd on, as its words bring it.
class RowBuilder {
 public:
  RowFormat& Format() { return format_; }
  /// The cell that the next `EndCellFormat` ends.
  CellFormat& Cell() { return cell_; }
  void EndCellFormat(int rightEdge);

  /// Makes a side of the cell the one that `Border` speaks of.
  void SelectBorder(CellSide side);
  /// Makes a side of the row that one.
  void SelectRowBorder(RowSide side);
  /// The border that words on borders are about; null if it is none of a cell or a row.
  Border* SelectedBorder();
  void SelectNoBorder() { border_ = kAbsent; }

 private:
  static constexpr int kCellSides = 4;
  static constexpr int kRowSides = 6;

  const Border& RowBorder(RowSide side) const { return borders_[static_cast<std::size_t>(side)]; }
  const Border& RowBorderOf(CellSide side) const;

  RowFormat format_;
  CellFormat cell_;
  std::array<Border, kRowSides> borders_;
  std::bitset<kCellSides> namedSides_;  ///< Of `cell_`.
  bool isLastRightNamed_ = true;  ///< Whether the last cell in `format_` names its right side.
  int border_ = kAbsent;          ///< A `CellSide`, or `kCellSides` and a `RowSide`.
};

/// Ends cells and rows at the sink, and those that a damaged file leaves open. Depths are as the
/// paragraphs of the file tell them: 1 for a table that stands in no other of this text.
class TableTracker {
 public:
  /// The text that is tracked stands in `outerDepth` tables.
  TableTracker(DocumentSink& sink, int outerDepth) : sink_(&sink), outerDepth_(outerDepth) {}

  int DepthAtSink(int depth) const { return outerDepth_ + depth; }
  /// A depth that the file names, brought to what is allowed.
  int Limited(int depth) const;

  /// Tells that something comes in the tables down to `depth`; deeper ones end.
  void Enter(int depth);
  void EndCell(int depth);
  void EndRow(int depth);

  RowBuilder& Row(bool isNested) { return isNested ? nestedRow_ : row_; }

 private:
  void Close(int depth);

  DocumentSink* sink_;
  int outerDepth_;
  int openDepth_ = 0;
  std::bitset<kDeepestTable + 1> openCells_;
  RowBuilder row_;
  RowBuilder nestedRow_;
};

}  // namespace tagsmith::rtf
