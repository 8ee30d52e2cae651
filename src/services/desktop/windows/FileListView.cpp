#include "services/desktop/windows/FileListView.h"

#include <QDrag>
#include <QMimeData>

#include "services/desktop/editpane/QtTextPane.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/MouseButtons.h"

namespace tagsmith {
namespace {

constexpr int kEndDrag = 2;

}  // namespace

FileListView::FileListView(FileListBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      list_(new EntryList({.count = [&control] { return control.ListCount(); },
                           .text = [&control](int row) { return ToQString(control.List(row)); }},
                          /*opensOnEnter=*/true, parent)) {
  if (control.MultiSelect()) list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  showLater_.setSingleShot(true);
  connect(&showLater_, &QTimer::timeout, this, [this] { ShowSelection(); });
  ShowSelection();
  list_->onGesture = [this](const ListGesture& gesture) { Take(gesture); };
  Adopt(list_);
}

FileListView::~FileListView() {
  if (Widget() == nullptr) return;
  list_->onGesture = nullptr;
  list_->Entries().Forget();
}

void FileListView::Update(Property property) {
  if (property == Property::kItems) list_->Entries().Reset();
  if (property == Property::kSelection && model_.MultiSelect()) {
    if (!showLater_.isActive()) showLater_.start();
  } else {
    ShowSelection();
  }
}

// Whatever reaches the list finds the selection that the model has.
bool FileListView::eventFilter(QObject* watched, QEvent* event) {
  if (showLater_.isActive()) ShowSelection();
  return ViewOf::eventFilter(watched, event);
}

void FileListView::ShowSelection() {
  showLater_.stop();
  const int current = model_.ListIndex();
  if (list_->CurrentRow() == current && ModelHas(SelectedRows())) return;
  if (!model_.MultiSelect()) {
    list_->ShowRow(current);
    return;
  }
  QItemSelectionModel& shown = *list_->selectionModel();
  shown.setCurrentIndex(list_->Entries().index(current, 0), QItemSelectionModel::NoUpdate);
  shown.select(ModelSelection(), QItemSelectionModel::ClearAndSelect);
}

QItemSelection FileListView::ModelSelection() const {
  QItemSelection selection;
  const EntryModel& entries = list_->Entries();
  for (int row = 0; row < model_.ListCount(); ++row) {
    if (!model_.Selected(row)) continue;
    const int first = row;
    while (model_.Selected(row + 1)) ++row;
    selection.select(entries.index(first, 0), entries.index(row, 0));
  }
  return selection;
}

std::vector<bool> FileListView::SelectedRows() const {
  std::vector<bool> rows(static_cast<std::size_t>(model_.ListCount()), false);
  for (const QItemSelectionRange& range : list_->selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      rows[static_cast<std::size_t>(row)] = true;
    }
  }
  return rows;
}

bool FileListView::ModelHas(const std::vector<bool>& rows) const {
  for (int row = 0; row < model_.ListCount(); ++row) {
    if (rows[static_cast<std::size_t>(row)] != model_.Selected(row)) return false;
  }
  return true;
}

void FileListView::TakeSelection(bool pressed) {
  const int current = list_->CurrentRow();
  if (!model_.MultiSelect()) {
    if (current >= 0 && (pressed || current != model_.ListIndex())) model_.Select(current);
    ShowSelection();
    return;
  }
  const std::vector<bool> rows = SelectedRows();
  if (!pressed && current == model_.ListIndex() && ModelHas(rows)) return;
  model_.UserSelection(rows, current);
}

void FileListView::Take(const ListGesture& gesture) {
  if (gesture.kind == ListGesture::Kind::kDrag) {
    RunDrag();
    return;
  }
  Host().Act([this, gesture] {
    const int button = ButtonNumber(gesture.button);
    switch (gesture.kind) {
      case ListGesture::Kind::kPress:
        TakeSelection(/*pressed=*/gesture.row >= 0);
        model_.MouseDown(button);
        break;
      case ListGesture::Kind::kRelease:
        TakeSelection(/*pressed=*/false);
        model_.MouseUp(button);
        break;
      case ListGesture::Kind::kOpen:
        model_.DoubleClick(gesture.row);
        break;
      default:
        TakeSelection(/*pressed=*/false);
    }
  });
}

// The mouse button comes up inside the drag: the list does not see it.
void FileListView::RunDrag() {
  const QPointer<FileListView> self(this);
  Host().SetDragged(&model_);
  auto* drag = new QDrag(list_);
  auto* data = new QMimeData;
  data->setData(QString::fromLatin1(kControlMimeType), QByteArray::fromStdString(model_.Name()));
  drag->setMimeData(data);
  drag->setPixmap(list_->viewport()->grab(list_->visualRect(list_->currentIndex())));
  drag->exec(Qt::CopyAction);
  if (!self) return;
  Host().SetDragged(nullptr);
  Host().Act([this] {
    model_.MouseUp(kLeftButton);
    if (model_.IsDragging()) model_.Drag(kEndDrag);
  });
}

}  // namespace tagsmith
