#pragma once

#include <QListView>
#include <functional>

#include "services/desktop/windows/EntryModel.h"

namespace tagsmith {

/// What the user has done to a list, told when the list has dealt with it.
struct ListGesture {
  enum class Kind {
    kPress,    ///< A mouse button went down.
    kMove,     ///< The mouse moved with a button held, or a key was pressed.
    kRelease,  ///< A mouse button came up.
    kOpen,     ///< A double click, or Enter.
    kDrag,     ///< The mouse has left the spot where it went down, and dragging is allowed.
  };

  Kind kind;
  Qt::MouseButton button = Qt::NoButton;
  int row = -1;  ///< The row under the mouse; the current one for a key.
};

/// A list of entries that tells gestures instead of selections.
class EntryList final : public QListView {
 public:
  /// Where `opensOnEnter` is false the key is left to the window.
  EntryList(EntrySource source, bool opensOnEnter, QWidget& parent);

  EntryModel& Entries() const { return *entries_; }
  int CurrentRow() const { return currentIndex().row(); }
  /// Makes `row` the current one and selects it alone; -1 for none.
  void ShowRow(int row);
  /// Whether the mouse, held down as it is, may begin a drag.
  void AllowDrag(bool allowed) { dragAllowed_ = allowed; }

  std::function<void(const ListGesture&)> onGesture;

  QSize sizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Tell(ListGesture::Kind kind, const QMouseEvent& event);

  EntryModel* entries_;
  bool opensOnEnter_;
  bool dragAllowed_ = false;
  QPoint pressedAt_;
};

}  // namespace tagsmith
