#pragma once

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

 private:
  void Update(Property property) override;
  void ShowSelection();
  void Take(const ListGesture& gesture);
  /// Gives the model the selection that the user has made, if it is another or `pressed` is true:
  /// a press on an entry counts also when nothing changes.
  void TakeSelection(bool pressed);
  std::vector<bool> SelectedRows() const;
  bool ModelHas(const std::vector<bool>& rows) const;
  void RunDrag();

  EntryList* list_;
};

}  // namespace tagsmith
