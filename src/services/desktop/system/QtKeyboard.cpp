#include "services/desktop/system/QtKeyboard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include "services/desktop/system/KeyNotation.h"

namespace tagsmith {
namespace {

// Asked anew for each event: a key may move the focus or close the window.
void SendToFocus(QEvent::Type type, const KeyStroke& stroke) {
  QWidget* target = QApplication::focusWidget();
  if (target == nullptr) return;
  while (target->focusProxy() != nullptr) target = target->focusProxy();
  QKeyEvent event(type, stroke.key, stroke.modifiers, stroke.text);
  QCoreApplication::sendEvent(target, &event);
}

}  // namespace

void QtKeyboard::SendKeys(std::string_view keys) {
  for (const KeyStroke& stroke : ParseKeys(keys)) {
    // Some widgets prepare for a key that is also a shortcut only when they are asked this first.
    SendToFocus(QEvent::ShortcutOverride, stroke);
    SendToFocus(QEvent::KeyPress, stroke);
    SendToFocus(QEvent::KeyRelease, stroke);
  }
}

}  // namespace tagsmith
