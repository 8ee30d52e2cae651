#pragma once

#include <QTableView>

#include "services/MSFlexGrid.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

class GridCells;

/// A grid in which a cell can be selected by mouse and arrow keys, but not edited.
class GridView final : public ViewOf<MSFlexGrid> {
 public:
  GridView(MSFlexGrid& control, ViewHost& host, QWidget& parent);
  ~GridView() override;

 private:
  void Update(Property property) override;
  void ShowCurrent();
  void Take(const QModelIndex& cell);

  QTableView* table_;
  GridCells* cells_;
  bool showing_ = false;
  /// The first cell is the current one from the start: until the user has selected one, pressing it
  /// counts.
  bool everTaken_ = false;
};

}  // namespace tagsmith
