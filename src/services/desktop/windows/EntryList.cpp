#include "services/desktop/windows/EntryList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QStyledItemDelegate>
#include <algorithm>
#include <utility>

namespace tagsmith {
namespace {

constexpr int kHintLetters = 24;
constexpr int kHintRows = 11;
constexpr int kIconMargin = 2;  // Above and below an icon, together.

/// Draws a row further right the deeper its entry lies.
class IndentedRows final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem indented = option;
    const int step = option.fontMetrics.height() * 2 / 3;
    indented.rect.setLeft(option.rect.left() + step * index.data(EntryModel::kDepthRole).toInt());
    QStyledItemDelegate::paint(painter, indented, index);
  }

  // Lists with and without icons stand side by side.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index)
        .expandedTo({0, option.decorationSize.height() + kIconMargin});
  }
};

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

EntryList::EntryList(EntrySource source, bool opensOnEnter, QWidget& parent)
    : QListView(&parent),
      entries_(new EntryModel(std::move(source), this)),
      opensOnEnter_(opensOnEnter) {
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideMiddle);
  const int icon = std::max(style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this),
                            fontMetrics().height());
  setIconSize(QSize(icon, icon));
  setItemDelegate(new IndentedRows(this));
  setModel(entries_);
}

QSize EntryList::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return {kHintLetters * metrics.averageCharWidth(),
          kHintRows * std::max(metrics.lineSpacing(), iconSize().height() + kIconMargin)};
}

void EntryList::ShowRow(int row) {
  const QModelIndex index = entries_->index(row, 0);
  if (index == currentIndex() && selectionModel()->isSelected(index)) return;
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
  if (index.isValid()) scrollTo(index);
}

void EntryList::Tell(ListGesture::Kind kind, const QMouseEvent& event) {
  // Copied: the gesture may end the list's view.
  const auto slot = onGesture;
  if (slot) slot({kind, event.button(), indexAt(event.position().toPoint()).row()});
}

void EntryList::mousePressEvent(QMouseEvent* event) {
  dragAllowed_ = false;
  pressedAt_ = event->position().toPoint();
  QListView::mousePressEvent(event);
  Tell(ListGesture::Kind::kPress, *event);
}

void EntryList::mouseMoveEvent(QMouseEvent* event) {
  if (!dragAllowed_) {
    QListView::mouseMoveEvent(event);
    if (event->buttons() != Qt::NoButton) Tell(ListGesture::Kind::kMove, *event);
    return;
  }
  const QPoint way = event->position().toPoint() - pressedAt_;
  if (way.manhattanLength() < QApplication::startDragDistance()) return;
  dragAllowed_ = false;
  setState(NoState);
  Tell(ListGesture::Kind::kDrag, *event);
}

void EntryList::mouseReleaseEvent(QMouseEvent* event) {
  dragAllowed_ = false;
  QListView::mouseReleaseEvent(event);
  Tell(ListGesture::Kind::kRelease, *event);
}

void EntryList::mouseDoubleClickEvent(QMouseEvent* event) {
  QListView::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton) Tell(ListGesture::Kind::kOpen, *event);
}

void EntryList::keyPressEvent(QKeyEvent* event) {
  const auto slot = onGesture;
  if (opensOnEnter_ && IsEnter(*event)) {
    if (slot) slot({ListGesture::Kind::kOpen, Qt::NoButton, CurrentRow()});
    return;
  }
  // Where nothing is selected the list would go on from the first entry to the second.
  const bool entersList = event->key() == Qt::Key_Down && !selectionModel()->hasSelection();
  entersList ? ShowRow(0) : QListView::keyPressEvent(event);
  if (slot) slot({ListGesture::Kind::kMove, Qt::NoButton, CurrentRow()});
}

}  // namespace tagsmith
