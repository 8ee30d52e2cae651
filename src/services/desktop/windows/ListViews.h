#pragma once

#include <QIcon>

#include "services/FileBoxes.h"
#include "services/Lists.h"
#include "services/desktop/windows/EntryList.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

class ListBoxView final : public ViewOf<ListBox> {
 public:
  ListBoxView(ListBox& control, ViewHost& host, QWidget& parent);
  ~ListBoxView() override;

 private:
  void Update(Property property) override;
  void Take(const ListGesture& gesture);

  EntryList* list_;
};

/// The ancestors of the open directory from the root down, the directory itself, and below it its
/// subdirectories.
class DirListView final : public ViewOf<DirListBox> {
 public:
  DirListView(DirListBox& control, ViewHost& host, QWidget& parent);
  ~DirListView() override;

 private:
  void Update(Property property) override;
  void Resized() override;
  void Take(const ListGesture& gesture);
  EntrySource Source();
  int RowOf(int index) const { return index + 1 + model_.AncestorCount(); }
  int IndexOf(int row) const { return row - 1 - model_.AncestorCount(); }

  QIcon closed_;
  QIcon open_;
  EntryList* list_;
};

}  // namespace tagsmith
