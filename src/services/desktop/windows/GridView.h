#pragma once

#include <QTableView>
#include <QTimer>

#include "services/MSFlexGrid.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

class GridCells;

/// A grid in which a cell can be selected by mouse and arrow keys, but not edited.
class GridView final : public ViewOf<MSFlexGrid> {
 public:
  GridView(MSFlexGrid& control, ViewHost& host, QWidget& parent);
  ~GridView() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Update(Property property) override;
  void ShowCurrent();
  void Take(const QModelIndex& cell);
  void TakeFirst();

  QTableView* table_;
  GridCells* cells_;
  bool showing_ = false;
  /// One cell is the current one from the start: until the user has selected one, pressing it
  /// counts, and so does an arrow key that leads nowhere.
  bool everTaken_ = false;
  QTimer afterKey_;  // Fires once the table has moved, if it does.
};

}  // namespace tagsmith
