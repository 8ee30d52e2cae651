#include "services/desktop/system/ModalDialog.h"

#include <QApplication>
#include <QCursor>
#include <QList>
#include <algorithm>

namespace tagsmith {
namespace {

// Takes all override cursors off while it lives.
class NormalPointer {
 public:
  NormalPointer() {
    while (const QCursor* cursor = QGuiApplication::overrideCursor()) {
      putAside_.prepend(*cursor);
      QGuiApplication::restoreOverrideCursor();
    }
  }
  ~NormalPointer() {
    for (const QCursor& cursor : putAside_) QGuiApplication::setOverrideCursor(cursor);
  }
  NormalPointer(const NormalPointer&) = delete;
  NormalPointer& operator=(const NormalPointer&) = delete;

 private:
  QList<QCursor> putAside_;
};

// The window's own memory of its focus does the rest.
class KeepActiveWindow {
 public:
  KeepActiveWindow() : window_(QApplication::activeWindow()) {}
  ~KeepActiveWindow() {
    if (window_ && window_->isVisible() && !window_->isActiveWindow()) window_->activateWindow();
  }
  KeepActiveWindow(const KeepActiveWindow&) = delete;
  KeepActiveWindow& operator=(const KeepActiveWindow&) = delete;

 private:
  QPointer<QWidget> window_;
};

bool AnyWindowStaysOnTop() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  });
}

}  // namespace

int RunModal(QDialog& dialog) {
  const NormalPointer pointer;
  const KeepActiveWindow active;
  if (AnyWindowStaysOnTop()) dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
  return dialog.exec();
}

}  // namespace tagsmith
