// What the user does to the edit pane with the mouse: middle click, drag and drop.

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>

#include "services/desktop/editpane/QtTextPane.h"
#include "services/desktop/editpane/SourceView.h"

namespace tagsmith {
namespace {

bool IsControl(const QMimeData* data) { return data->hasFormat(kControlMimeType); }

}  // namespace

bool SourceView::canInsertFromMimeData(const QMimeData* source) const { return source->hasText(); }

std::size_t SourceView::PositionAt(const QPoint& place) const {
  return static_cast<std::size_t>(
      SendScintilla(SCI_POSITIONFROMPOINT, static_cast<unsigned long>(place.x()), long{place.y()}));
}

// --- Buttons ---

void SourceView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) return;
  // Control and Alt would begin rectangular and multiple selections.
  event->setModifiers(event->modifiers() & Qt::ShiftModifier);
  AsUser([&] { QsciScintilla::mousePressEvent(event); });
}

void SourceView::mouseMoveEvent(QMouseEvent* event) {
  // A drag to another program runs and ends in here.
  AsUser([&] { QsciScintilla::mouseMoveEvent(event); });
}

void SourceView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    PastePrimarySelection(event->position().toPoint());
    return;
  }
  AsUser([&] { QsciScintilla::mouseReleaseEvent(event); });
}

void SourceView::PastePrimarySelection(const QPoint& place) {
  const QClipboard* clipboard = QApplication::clipboard();
  if (!clipboard->supportsSelection()) return;
  const std::string text = TextOf(clipboard->mimeData(QClipboard::Selection));
  if (!text.empty()) UserReplace({PositionAt(place), 0}, text);
}

// --- Drag and drop ---

void SourceView::dragEnterEvent(QDragEnterEvent* event) {
  if (IsControl(event->mimeData())) {
    event->acceptProposedAction();
  } else {
    QsciScintilla::dragEnterEvent(event);
  }
}

void SourceView::dragMoveEvent(QDragMoveEvent* event) {
  if (IsControl(event->mimeData())) {
    event->acceptProposedAction();
  } else {
    QsciScintilla::dragMoveEvent(event);
  }
}

void SourceView::dropEvent(QDropEvent* event) {
  if (IsControl(event->mimeData())) {
    event->acceptProposedAction();
    const QPoint place = viewport()->mapTo(this, event->position().toPoint());
    if (controlDropHandler_) controlDropHandler_(place);
    return;
  }
  if (!event->mimeData()->hasText() || text_.InGroup()) {
    event->ignore();
    return;
  }
  AsUser([&] { DropText(*event); });
}

void SourceView::DropText(QDropEvent& event) {
  QDragLeaveEvent leave;
  QsciScintilla::dragLeaveEvent(&leave);

  const std::size_t position = PositionAt(event.position().toPoint());
  event.acceptProposedAction();
  if (event.source() == this) {
    MoveSelectionTo(position, event.dropAction() == Qt::MoveAction);
    return;
  }
  const std::string text = TextOf(event.mimeData());
  UserReplace({position, 0}, text);
  text_.Select(text_.Snap(position, text.size()));
}

void SourceView::MoveSelectionTo(std::size_t position, bool moving) {
  DropComposition();
  const TextSpan selection = text_.Selection();
  if (moving && position >= selection.start && position <= selection.End()) return;

  const std::string bytes = text_.Bytes(selection);
  text_.BeginGroup();
  text_.Replace({position, 0}, bytes);
  if (moving) {
    const bool ahead = position < selection.start;
    text_.Replace({selection.start + (ahead ? bytes.size() : 0), bytes.size()}, {});
    if (!ahead) position -= bytes.size();
  }
  text_.EndGroup();
  text_.Select(text_.Snap(position, bytes.size()));
  modified_ = true;
}

}  // namespace tagsmith
