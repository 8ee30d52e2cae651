#pragma once

#include <Qsci/qsciscintilla.h>

#include <QPoint>
#include <QTimer>
#include <functional>
#include <string>
#include <string_view>

#include "services/TextPane.h"
#include "services/desktop/editpane/ScintillaText.h"

class QMenu;

namespace tagsmith {

/// The widget of the edit pane. It takes the user's events and tells the listener, when an event is
/// done, that it has changed the text; edits of the system come through the functions below and
/// are told nobody.
class SourceView final : public QsciScintilla {
 public:
  SourceView();

  void SetListener(TextPaneListener* listener) { listener_ = listener; }
  void SetControlDropHandler(std::function<void(QPoint)> handler);

  // --- The system's edits. Spans lie in the text. ---

  const ScintillaText& Content() const { return text_; }
  void SetWholeText(std::string_view text);
  void SelectSpan(const TextSpan& span);
  void ShowSelection();
  void ReplaceSelection(std::string_view text);
  void BeginUndoGroup();
  void EndUndoGroup();
  void UndoStep();
  void EmptyUndoHistory();

  const FontSpec& Font() const { return font_; }
  void SetPaneFont(const FontSpec& font);

  // --- The user's commands, from keys and from the context menu ---

  void undo() override;
  void redo() override;
  void cut() override;
  void copy() override;
  void paste() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;

 private:
  // Runs what a user event does, then tells the listener if it has changed the text.
  void AsUser(const std::function<void()>& event);
  void ReportChange();
  void NoteModification();

  void TakeKey(QKeyEvent& event);
  void TypeKey(QKeyEvent& event, int character);
  bool RunOwnCommand(int command);
  void DeleteSelection();
  void SelectAll();
  void PastePrimarySelection(const QPoint& place);
  void DropText(QDropEvent& event);
  void MoveSelectionTo(std::size_t position, bool moving);
  QPoint CaretOnScreen() const;
  void FillContextMenu(QMenu& menu);

  // Puts `text` in place of a span for the user.
  void UserReplace(const TextSpan& span, std::string_view text);
  std::size_t PositionAt(const QPoint& place) const;
  // The bytes of the selection as they go to other programs, and what comes from those.
  QMimeData* SelectionData() const;
  static std::string TextOf(const QMimeData* data);

  void FollowPrimarySelection();
  void NotePrimarySelection(bool owned);
  void DropComposition();
  void Settle();
  void SnapCaret();
  void ShowCaret();
  void RefreshLook();
  void MarkMatchingTag();

  ScintillaText text_;
  TextPaneListener* listener_ = nullptr;
  std::function<void(QPoint)> controlDropHandler_;
  FontSpec font_;
  QTimer report_;  // of changes made without an event
  QTimer claim_;   // of the primary selection
  int userEvents_ = 0;
  bool modified_ = false;
  bool composing_ = false;
  bool ownsPrimary_ = true;
};

}  // namespace tagsmith
