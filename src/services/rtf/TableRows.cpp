#include "services/rtf/TableRows.h"

#include <algorithm>

namespace tagsmith::rtf {
namespace {

// Well above what word processors write; a bound for files that repeat a damaged row.
constexpr std::size_t kMostCells = 256;

std::size_t BitOf(int depth) { return static_cast<std::size_t>(depth); }

}  // namespace

void RowBuilder::EndCellFormat(int rightEdge) {
  cell_.rightEdge = rightEdge;
  if (format_.cells.size() < kMostCells) format_.cells.push_back(cell_);
  cell_ = {};
  SelectNoBorder();
}

void RowBuilder::SelectBorder(CellSide side) {
  border_ = static_cast<int>(side);
  *SelectedBorder() = {.isThere = true};
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
