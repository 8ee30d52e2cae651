#include "services/desktop/windows/WindowShape.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace tagsmith {

Qt::WindowFlags FlagsFor(const Form& form, bool modal) {
  constexpr Qt::WindowFlags kFixedFrame = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  Qt::WindowFlags flags;
  switch (form.Border()) {
    case BorderStyle::kSizable:
      flags = modal ? Qt::Dialog | kFixedFrame | Qt::WindowMaximizeButtonHint
                    : Qt::WindowFlags(Qt::Window);
      break;
    case BorderStyle::kFixed:
    case BorderStyle::kToolWindow:
      flags = Qt::Dialog | kFixedFrame;
      break;
    case BorderStyle::kNone:
      flags = Qt::SplashScreen | Qt::FramelessWindowHint;
      break;
  }
  flags.setFlag(Qt::WindowStaysOnTopHint, form.IsOnTop());
  return flags;
}

QSize RoomFor(const QWidget& window) {
  const QSize available = window.screen()->availableGeometry().size();
  if (window.windowFlags().testFlag(Qt::FramelessWindowHint)) return available;
  return available - QSize(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight));
}

void Centre(QWidget& window, const QWidget* above) {
  const QScreen* screen = above != nullptr ? above->screen() : window.screen();
  const QRect available = screen->availableGeometry();
  const bool isAbove = above != nullptr && above->isVisible() && !above->isMinimized();
  QRect place(QPoint(), window.size());
  place.moveCenter(isAbove ? above->frameGeometry().center() : available.center());
  place.moveRight(std::min(place.right(), available.right()));
  place.moveBottom(std::min(place.bottom(), available.bottom()));
  place.moveLeft(std::max(place.left(), available.left()));
  place.moveTop(std::max(place.top(), available.top()));
  window.move(place.topLeft());
}

void PutIntoCorner(QWidget& window) {
  QRect place(QPoint(), window.size());
  place.moveTopRight(window.screen()->availableGeometry().topRight());
  window.move(place.topLeft());
}

void SetStaysOnTop(QWidget& window, bool onTop) {
  Qt::WindowFlags flags = window.windowFlags();
  flags.setFlag(Qt::WindowStaysOnTopHint, onTop);
  // QWidget::setWindowFlags would take the window off the screen.
  window.overrideWindowFlags(flags);
  if (QWindow* handle = window.windowHandle()) handle->setFlag(Qt::WindowStaysOnTopHint, onTop);
}

}  // namespace tagsmith
