#pragma once

#include <QComboBox>

#include "services/FileBoxes.h"
#include "services/Lists.h"
#include "services/desktop/windows/EntryModel.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

/// A combo box that takes typed text as it is: nothing is completed, inserted or chosen by it, nor
/// by the mouse wheel. Its list is as wide as its entries need, and scrolls where they are many.
/// The menu bar leaves the selection in its field alone.
class PlainCombo final : public QComboBox {
 public:
  PlainCombo(EntrySource source, QWidget& parent);

  EntryModel& Entries() const { return *entries_; }
  void SetTyping(bool typing);

  void showPopup() override;

 protected:
  void focusOutEvent(QFocusEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  EntryModel* entries_;
};

class ComboBoxView final : public ViewOf<ComboBox> {
 public:
  ComboBoxView(ComboBox& control, ViewHost& host, QWidget& parent);
  ~ComboBoxView() override;

 private:
  void Update(Property property) override;

  PlainCombo* combo_;
};

class DriveListView final : public ViewOf<DriveListBox> {
 public:
  DriveListView(DriveListBox& control, ViewHost& host, QWidget& parent);
  ~DriveListView() override;

 private:
  void Update(Property property) override;

  PlainCombo* combo_;
};

}  // namespace tagsmith
