// What the user has the edit pane do: undo, the clipboard, the desktop's primary selection, and the
// context menu that offers them.

#include <Qsci/qscicommand.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>

#include "services/desktop/editpane/PaneColours.h"
#include "services/desktop/editpane/PaneLook.h"
#include "services/desktop/editpane/SourceView.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

struct MenuEntry {
  const char* caption;
  const char* keys;
  const char* icon;
  void (SourceView::*command)();
  bool enabled;
};

}  // namespace

// --- The user's commands ---

void SourceView::undo() {
  AsUser([this] {
    DropComposition();
    modified_ |= text_.Undo();
  });
}

void SourceView::redo() {
  AsUser([this] {
    DropComposition();
    modified_ |= text_.Redo();
  });
}

void SourceView::cut() {
  copy();
  DeleteSelection();
}

void SourceView::copy() {
  if (text_.Selection().length > 0) QApplication::clipboard()->setMimeData(SelectionData());
}

void SourceView::paste() {
  const std::string text = TextOf(QApplication::clipboard()->mimeData());
  if (!text.empty()) UserReplace(text_.Selection(), text);
}

void SourceView::DeleteSelection() {
  if (text_.Selection().length > 0) UserReplace(text_.Selection(), {});
}

void SourceView::SelectAll() { SendScintilla(SCI_SELECTALL); }

void SourceView::UserReplace(const TextSpan& span, std::string_view text) {
  if (text_.InGroup()) return;
  AsUser([&] {
    DropComposition();
    text_.Replace(span, text);
    text_.Select({span.start + text.size(), 0});
    modified_ = true;
  });
}

bool SourceView::RunOwnCommand(int command) {
  switch (command) {
    case QsciCommand::Undo:
      undo();
      return true;
    case QsciCommand::Redo:
      redo();
      return true;
    case QsciCommand::SelectionCut:
      cut();
      return true;
    case QsciCommand::SelectionCopy:
      copy();
      return true;
    case QsciCommand::Paste:
      paste();
      return true;
    case QsciCommand::ZoomIn:
      zoomIn();
      return true;
    case SCI_SETZOOM:
      zoomTo(0);
      return true;
    default:
      return false;
  }
}

// --- The primary selection ---

QMimeData* SourceView::SelectionData() const {
  auto* bytes = new QMimeData;
  bytes->setText(ToQString(text_.Bytes(text_.Selection())));
  return bytes;
}

std::string SourceView::TextOf(const QMimeData* data) {
  return data == nullptr ? std::string() : FromQString(data->text());
}

// The base class's own turns a NUL into a blank.
QMimeData* SourceView::toMimeData(const QByteArray&, bool) const { return SelectionData(); }

// The base class shows its selection in a grey of its own while it has not the desktop's primary
// selection: after a click, and once another program has one. So what the system selects for the
// user to see takes it as well, and the grey is kept legible.
void SourceView::FollowPrimarySelection() {
  const QClipboard* clipboard = QApplication::clipboard();
  if (!clipboard->supportsSelection()) return;
  connect(this, &QsciScintillaBase::QSCN_SELCHANGED, this, &SourceView::NotePrimarySelection);
  connect(clipboard, &QClipboard::selectionChanged, this, [this, clipboard] {
    if (!clipboard->ownsSelection()) NotePrimarySelection(false);
  });

  // Selections that come and go within a command are not for the user to see.
  claim_.setSingleShot(true);
  claim_.setInterval(0);
  connect(&claim_, &QTimer::timeout, this, [this] {
    const TextSpan selection = text_.Selection();
    if (selection.length == 0 || !isVisible()) return;
    SendScintilla(SCI_SETSEL, static_cast<unsigned long>(selection.start),
                  static_cast<long>(selection.End()));
  });
}

void SourceView::NotePrimarySelection(bool owned) {
  if (owned == ownsPrimary_) return;
  ownsPrimary_ = owned;
  ColourSelectedText(*this, ColoursFor(palette()), owned);
}

// --- Context menu ---

void SourceView::contextMenuEvent(QContextMenuEvent* event) {
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const TextSpan selection = text_.Selection();
  const std::size_t clicked = PositionAt(event->pos());
  if (!byKey && (clicked < selection.start || clicked > selection.End())) {
    text_.Select({clicked, 0});
  }
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FillContextMenu(*menu);
  menu->popup(byKey ? CaretOnScreen() : event->globalPos());
  event->accept();
}

QPoint SourceView::CaretOnScreen() const {
  const long caret = SendScintilla(SCI_GETCURRENTPOS);
  const auto ask = [&](unsigned message) {
    return static_cast<int>(SendScintilla(message, 0UL, caret));
  };
  return viewport()->mapToGlobal(QPoint(ask(SCI_POINTXFROMPOSITION), ask(SCI_POINTYFROMPOSITION)));
}

void SourceView::FillContextMenu(QMenu& menu) {
  const bool selected = text_.Selection().length > 0;
  const bool pastable = !TextOf(QApplication::clipboard()->mimeData()).empty();
  const MenuEntry entries[] = {
      {"&Undo", "Ctrl+Z", "edit-undo", &SourceView::undo, isUndoAvailable()},
      {"&Redo", "Ctrl+Y", "edit-redo", &SourceView::redo, isRedoAvailable()},
      {nullptr, nullptr, nullptr, nullptr, false},
      {"Cu&t", "Ctrl+X", "edit-cut", &SourceView::cut, selected},
      {"&Copy", "Ctrl+C", "edit-copy", &SourceView::copy, selected},
      {"&Paste", "Ctrl+V", "edit-paste", &SourceView::paste, pastable},
      {"&Delete", "Del", "edit-delete", &SourceView::DeleteSelection, selected},
      {nullptr, nullptr, nullptr, nullptr, false},
      {"Select &All", "Ctrl+A", "edit-select-all", &SourceView::SelectAll, text_.Length() > 0}};
  for (const MenuEntry& entry : entries) {
    if (entry.command == nullptr) {
      menu.addSeparator();
      continue;
    }
    // The keys are the pane's own: told in the caption, not taken by the menu.
    const QString caption =
        QStringLiteral("%1\t%2").arg(QLatin1String(entry.caption), QLatin1String(entry.keys));
    QAction* action = menu.addAction(QIcon::fromTheme(QLatin1String(entry.icon)), caption);
    action->setEnabled(entry.enabled);
    connect(action, &QAction::triggered, this, [this, run = entry.command] { (this->*run)(); });
  }
}

}  // namespace tagsmith
