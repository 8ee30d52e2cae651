#include "services/rtf/TableRows.h"

#include <algorithm>

namespace tagsmith::rtf {
namespace {

// Well above what word processors write; a bound for files that repeat a damaged row.
constexpr std::size_t kMostCells = 256;

constexpr CellSide kAllSides[] = {CellSide::kTop, CellSide::kRight, CellSide::kBottom,
                                  CellSide::kLeft};

std::size_t BitOf(int depth) { return static_cast<std::size_t>(depth); }
std::size_t BitOf(CellSide side) { return static_cast<std::size_t>(side); }

}  // namespace

// Each cell is taken for the row's last one until the next one comes.
void RowBuilder::EndCellFormat(int rightEdge) {
  cell_.rightEdge = rightEdge;
  for (const CellSide side : kAllSides) {
    if (!namedSides_[BitOf(side)]) cell_.borders[BitOf(side)] = RowBorderOf(side);
  }
  if (format_.cells.size() < kMostCells) {
    if (!isLastRightNamed_) {
      format_.cells.back().borders[BitOf(CellSide::kRight)] = RowBorder(RowSide::kBetween);
    }
    format_.cells.push_back(cell_);
    isLastRightNamed_ = namedSides_[BitOf(CellSide::kRight)];
  }
  cell_ = {};
  namedSides_.reset();
  SelectNoBorder();
}

// A row does not know whether it is the table's first or last one.
const Border& RowBuilder::RowBorderOf(CellSide side) const {
  const bool hasBelow = RowBorder(RowSide::kBelow).isThere;
  switch (side) {
    case CellSide::kTop:
      return RowBorder(hasBelow ? RowSide::kBelow : RowSide::kTop);
    case CellSide::kBottom:
      return RowBorder(hasBelow ? RowSide::kBelow : RowSide::kBottom);
    case CellSide::kLeft:
      return RowBorder(format_.cells.empty() ? RowSide::kLeft : RowSide::kBetween);
    default:
      return RowBorder(RowSide::kRight);
  }
}

void RowBuilder::SelectBorder(CellSide side) {
  border_ = static_cast<int>(side);
  namedSides_.set(BitOf(side));
  *SelectedBorder() = {.isThere = true};
}

void RowBuilder::SelectRowBorder(RowSide side) {
  border_ = kCellSides + static_cast<int>(side);
  *SelectedBorder() = {.isThere = true};
}

Border* RowBuilder::SelectedBorder() {
  if (border_ == kAbsent) return nullptr;
  const auto index = static_cast<std::size_t>(border_);
  return border_ < kCellSides ? &cell_.borders[index] : &borders_[index - kCellSides];
}

int TableTracker::Limited(int depth) const {
  return std::clamp(depth, 0, kDeepestTable - outerDepth_);
}

void TableTracker::Enter(int depth) {
  while (openDepth_ > depth) Close(openDepth_);
  for (int open = std::max(openDepth_, 1); open <= depth; ++open) openCells_.set(BitOf(open));
  openDepth_ = depth;
}

void TableTracker::Close(int depth) {
  if (openCells_[BitOf(depth)]) EndCell(depth);
  EndRow(depth);
}

void TableTracker::EndCell(int depth) {
  Enter(depth);
  sink_->EndCell(DepthAtSink(depth));
  openCells_.reset(BitOf(depth));
}

// A row without cells is none.
void TableTracker::EndRow(int depth) {
  while (openDepth_ > depth) Close(openDepth_);
  if (openDepth_ < depth) return;
  if (openCells_[BitOf(depth)]) EndCell(depth);
  sink_->EndRow(DepthAtSink(depth), Row(depth > 1).Format());
  openDepth_ = depth - 1;
}

}  // namespace tagsmith::rtf
