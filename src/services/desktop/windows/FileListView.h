#pragma once

#include <QItemSelection>
#include <QTimer>
#include <vector>

#include "services/FileBoxes.h"
#include "services/desktop/windows/EntryList.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

class FileListView final : public ViewOf<FileListBox> {
 public:
  FileListView(FileListBox& control, ViewHost& host, QWidget& parent);
  ~FileListView() override;

  void Drag(bool allowed) override { list_->AllowDrag(allowed); }
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Update(Property property) override;
  void ShowSelection();
  QItemSelection ModelSelection() const;
  void Take(const ListGesture& gesture);
  /// Gives the model the selection that the user has made, if it is another or `pressed` is true:
  /// a press on an entry counts also when nothing changes.
  void TakeSelection(bool pressed);
  std::vector<bool> SelectedRows() const;
  bool ModelHas(const std::vector<bool>& rows) const;
  void RunDrag();

  EntryList* list_;
  // Running while the selection of several has changed and is not shown yet: a form that selects
  // its files one by one has them shown once.
  QTimer showLater_;
};

}  // namespace tagsmith
