#pragma once

#include <QSize>
#include <QWidget>
#include <functional>

class QMenuBar;

namespace tagsmith {

/// What happens to a form's window.
struct WindowEvents {
  std::function<void()> activated;
  std::function<void(bool)> minimized;
  std::function<void()> closeWanted;    ///< The title bar's close button.
  std::function<void()> escapePressed;  ///< Where nothing else has a use for the key.
  std::function<void()> enterPressed;   ///< The same.
  std::function<void(QSize)> clientResized;
};

/// A form's window: a menu bar, if the form has menus, and below it the client area.
class FormWidget final : public QWidget {
 public:
  explicit FormWidget(WindowEvents events);

  QWidget& Client() const { return *client_; }
  /// Made on first use.
  QMenuBar& MenuBar();
  /// The width at which all menus stand side by side; 0 without menus.
  int MenuWidth() const;
  /// The window's size with a client area of `client`.
  QSize SizeFor(QSize client) const;
  /// Puts the client area into a scrolled frame, for a screen that is smaller than it.
  void MakeScrollable();
  /// Tells nothing any more: the form is gone.
  void Forget() { events_ = {}; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  WindowEvents events_;
  QWidget* client_;
  QMenuBar* menuBar_ = nullptr;
};

}  // namespace tagsmith
