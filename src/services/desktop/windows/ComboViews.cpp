#include "services/desktop/windows/ComboViews.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QLineEdit>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

constexpr int kVisibleEntries = 20;
constexpr int kLeastLetters = 8;

}  // namespace

PlainCombo::PlainCombo(EntrySource source, QWidget& parent)
    : QComboBox(&parent), entries_(new EntryModel(std::move(source), this)) {
  setInsertPolicy(NoInsert);
  setMaxVisibleItems(kVisibleEntries);
  setMinimumContentsLength(kLeastLetters);
  setModel(entries_);
  // A style may ask for a menu as tall as the screen instead, which knows no most rows. Said here
  // it holds on top of the application's style, whichever that is or becomes.
  setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
}

void PlainCombo::SetTyping(bool typing) {
  setEditable(typing);
  if (!typing) return;
  setCompleter(nullptr);
  // It would choose the entry whose text has been typed.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
}

void PlainCombo::showPopup() {
  QAbstractItemView& list = *view();
  list.setTextElideMode(Qt::ElideNone);
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &list);
  list.setMinimumWidth(std::max(width(), list.sizeHintForColumn(0) + bar));
  QComboBox::showPopup();
}

// The field would lose its selection to the menu bar, and with it what Edit > Copy is about.
void PlainCombo::focusOutEvent(QFocusEvent* event) {
  const bool toMenu = event->reason() == Qt::MenuBarFocusReason;
  QFocusEvent told(QEvent::FocusOut, toMenu ? Qt::PopupFocusReason : event->reason());
  QComboBox::focusOutEvent(&told);
}

void PlainCombo::wheelEvent(QWheelEvent* event) { event->ignore(); }

ComboBoxView::ComboBoxView(ComboBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      combo_(new PlainCombo({.count = [&control] { return control.ListCount(); },
                             .text = [&control](int row) { return ToQString(control.List(row)); }},
                            parent)) {
  combo_->SetTyping(control.Style() == ComboStyle::kDropDownCombo);
  Update(Property::kSelection);
  Adopt(combo_);
  combo_->setAccessibleDescription(
      control.ToolTipText().empty() ? combo_->objectName() : ToQString(control.ToolTipText()));
  connect(combo_, &QComboBox::activated, this,
          [this](int index) { Host().Act([this, index] { model_.Select(index); }); });
  if (combo_->lineEdit() == nullptr) return;
  connect(combo_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
    Host().Act([this, &text] { model_.UserEdit(FromQString(text)); });
  });
}

ComboBoxView::~ComboBoxView() {
  if (Widget() != nullptr) combo_->Entries().Forget();
}

void ComboBoxView::Update(Property property) {
  if (property == Property::kItems) combo_->Entries().Reset();
  if (combo_->currentIndex() != model_.ListIndex()) combo_->setCurrentIndex(model_.ListIndex());
  if (combo_->lineEdit() == nullptr) return;
  const QString text = ToQString(model_.Text());
  if (combo_->currentText() != text) combo_->setEditText(text);
}

DriveListView::DriveListView(DriveListBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      combo_(new PlainCombo({.count = [&control] { return control.ListCount(); },
                             .text = [&control](int row) { return ToQString(control.List(row)); }},
                            parent)) {
  Update(Property::kSelection);
  Adopt(combo_);
  combo_->setAccessibleDescription(QStringLiteral("Drive"));
  connect(combo_, &QComboBox::activated, this,
          [this](int index) { Host().Act([this, index] { model_.Select(index); }); });
}

DriveListView::~DriveListView() {
  if (Widget() != nullptr) combo_->Entries().Forget();
}

void DriveListView::Update(Property property) {
  if (property == Property::kItems) combo_->Entries().Reset();
  combo_->setCurrentIndex(model_.ListIndex());
}

}  // namespace tagsmith
