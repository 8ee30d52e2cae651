#include "services/desktop/editpane/SourceView.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QInputMethod>
#include <QKeyEvent>
#include <QPointer>
#include <algorithm>

#include "services/Lines.h"
#include "services/desktop/editpane/MatchingTag.h"
#include "services/desktop/editpane/PaneColours.h"
#include "services/desktop/editpane/PaneKeys.h"
#include "services/desktop/editpane/PaneLook.h"

namespace tagsmith {
namespace {

FontSpec StandardFont() {
  const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  FontSpec font;
  font.name = fixed.family().toStdString();
  if (fixed.pointSizeF() > 0) font.size = fixed.pointSizeF();
  return font;
}

// What the Enter key types in a text.
QsciScintilla::EolMode EnterMode(std::string_view text) {
  const std::string_view lineEnd = PrevailingLineEnd(text);
  if (lineEnd == "\r\n") return QsciScintilla::EolWindows;
  return lineEnd == "\r" ? QsciScintilla::EolMac : QsciScintilla::EolUnix;
}

}  // namespace

SourceView::SourceView() : text_(*this), font_(StandardFont()) {
  PreparePane(*this);
  KeepOrdinaryKeys(*this);
  setEolMode(EnterMode({}));
  RefreshLook();

  FollowPrimarySelection();
  report_.setSingleShot(true);
  report_.setInterval(0);
  connect(&report_, &QTimer::timeout, this, &SourceView::ReportChange);
  connect(this, &QsciScintillaBase::SCN_MODIFIED, this, [this] { NoteModification(); });
  connect(this, &QsciScintillaBase::SCN_UPDATEUI, this, [this] { MarkMatchingTag(); });
  connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] { FitLineNumberMargin(*this); });
}

void SourceView::SetControlDropHandler(std::function<void(QPoint)> handler) {
  controlDropHandler_ = std::move(handler);
}

// --- The system's edits ---

void SourceView::SetWholeText(std::string_view text) {
  DropComposition();
  text_.Replace({0, text_.Length()}, text);
  text_.Select({});
  setEolMode(EnterMode(text));
  SendScintilla(SCI_SETSCROLLWIDTH, 1UL, 0L);
  Settle();
}

void SourceView::SelectSpan(const TextSpan& span) {
  text_.Select(span);
  if (text_.InGroup()) return;
  ShowCaret();
  if (span.length > 0) claim_.start();
}

// All of it, and the start of its line where there is room for both.
void SourceView::ShowSelection() {
  const TextSpan span = text_.Selection();
  SendScintilla(SCI_SETXOFFSET, 0UL, 0L);
  SendScintilla(SCI_SCROLLRANGE, static_cast<unsigned long>(span.start),
                static_cast<long>(span.End()));
  if (span.length > 0) claim_.start();
}

void SourceView::ReplaceSelection(std::string_view text) {
  DropComposition();
  const TextSpan selection = text_.Selection();
  if (selection.length == 0 && text.empty()) return;
  text_.Replace(selection, text);
  text_.Select({text_.Snap(selection.start + text.size()), 0});
  Settle();
}

void SourceView::BeginUndoGroup() { text_.BeginGroup(); }

void SourceView::EndUndoGroup() {
  text_.EndGroup();
  Settle();
}

void SourceView::UndoStep() {
  DropComposition();
  if (text_.Undo()) Settle();
}

void SourceView::EmptyUndoHistory() { text_.EmptyUndoHistory(); }

void SourceView::SetPaneFont(const FontSpec& font) {
  if (font == font_) return;
  font_ = font;
  RefreshLook();
  ShowCaret();
}

// --- Telling the listener ---

void SourceView::AsUser(const std::function<void()>& event) {
  const QPointer<SourceView> alive(this);
  ++userEvents_;
  event();
  if (!alive) return;
  --userEvents_;
  ReportChange();
}

void SourceView::ReportChange() {
  if (userEvents_ > 0 || !modified_) return;
  modified_ = false;
  Settle();
  if (listener_ != nullptr) listener_->UserChanged();
}

void SourceView::NoteModification() {
  modified_ = true;
  // An assistive technology writes without an event of the widget. Nothing may edit before this
  // notification has returned.
  if (userEvents_ == 0) report_.start();
}

// --- Keys and input methods ---

void SourceView::keyPressEvent(QKeyEvent* event) {
  AsUser([&] { TakeKey(*event); });
}

void SourceView::TakeKey(QKeyEvent& event) {
  const int command = BoundCommand(*this, event);
  const int character = TypedCharacter(event);
  if (text_.InGroup() || (command == 0 && character == 0)) {
    event.ignore();
  } else if (RunOwnCommand(command)) {
    event.accept();
  } else if (character != 0) {
    TypeKey(event, character);
  } else {
    QsciScintilla::keyPressEvent(&event);
  }
}

void SourceView::TypeKey(QKeyEvent& event, int character) {
  if (listener_ != nullptr && !listener_->UserKeyPress(character)) {
    event.accept();
    return;
  }
  if (!event.text().isEmpty() && event.text().front().isSurrogate()) {
    // The base class types only what fits one UTF-16 unit.
    QInputMethodEvent commit;
    commit.setCommitString(event.text());
    QsciScintilla::inputMethodEvent(&commit);
    return;
  }
  QsciScintilla::keyPressEvent(&event);
}

void SourceView::inputMethodEvent(QInputMethodEvent* event) {
  if (text_.InGroup()) {
    event->ignore();
    return;
  }
  AsUser([&] {
    composing_ = !event->preeditString().isEmpty();
    QsciScintilla::inputMethodEvent(event);
  });
}

// The base class keeps the text under composition in the document and remembers its place, which
// another edit would shift. Taking it out is told nobody: the edit that follows is.
void SourceView::DropComposition() {
  if (!composing_) return;
  composing_ = false;
  const bool modified = modified_;
  ++userEvents_;
  QInputMethodEvent nothing;
  QsciScintilla::inputMethodEvent(&nothing);
  --userEvents_;
  modified_ = modified;
  QGuiApplication::inputMethod()->reset();
}

// Tab is a key of the pane. The base class keeps Shift+Tab too and would let nobody out.
bool SourceView::focusNextPrevChild(bool next) {
  return !next && QWidget::focusNextPrevChild(false);  // NOLINT(bugprone-parent-virtual-call)
}

// --- What follows an edit ---

void SourceView::Settle() {
  if (text_.InGroup()) return;
  FitLineNumberMargin(*this);
  if (font_.strikeThru) FillIndicator(*this, kStrikeIndicator, {0, text_.Length()});
  SnapCaret();
  ShowCaret();
}

// An edit can bring a CR before the caret and a LF behind it together. The caret is drawn at the
// end of the line then, and what is typed has to appear there.
void SourceView::SnapCaret() {
  const TextSpan caret = text_.Selection();
  if (composing_ || caret.length > 0) return;
  const std::size_t place = text_.Snap(caret.start);
  if (place != caret.start) text_.Select({place, 0});
}

void SourceView::ShowCaret() {
  SendScintilla(SCI_SCROLLCARET);
  SendScintilla(SCI_CHOOSECARETX);
}

void SourceView::changeEvent(QEvent* event) {
  QsciScintilla::changeEvent(event);
  const QEvent::Type type = event->type();
  if (type == QEvent::PaletteChange || type == QEvent::EnabledChange) RefreshLook();
}

void SourceView::RefreshLook() {
  const PaneColours colours = ColoursFor(palette());
  DressPane(*this, colours, font_);
  ColourSelectedText(*this, colours, ownsPrimary_);
  const TextSpan all{0, text_.Length()};
  if (font_.strikeThru) {
    FillIndicator(*this, kStrikeIndicator, all);
  } else {
    ClearIndicator(*this, kStrikeIndicator, all);
  }
}

void SourceView::MarkMatchingTag() {
  constexpr std::size_t kReach = 65536;
  // Edits have moved the marks. Where there are none this costs next to nothing.
  ClearIndicator(*this, kMatchIndicator, {0, text_.Length()});
  if (text_.Selection().length > 0) return;

  const std::size_t caret = text_.Selection().start;
  const std::size_t from = text_.Snap(caret - std::min(caret, kReach));
  const TextSpan window{from, text_.Snap(caret + kReach) - from};
  const std::optional<TagPair> pair = FindMatchingTag(text_.Bytes(window), caret - from);
  if (!pair) return;

  for (TextSpan name : {pair->opening, pair->closing}) {
    name.start += from;
    FillIndicator(*this, kMatchIndicator, name);
  }
}

}  // namespace tagsmith
