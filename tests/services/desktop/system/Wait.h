#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <functional>

namespace tagsmith {

/// Handles events until `condition` holds; false if it does not within two seconds.
inline bool WaitUntil(const std::function<bool()>& condition) {
  const QDeadlineTimer deadline(2000);
  while (!condition() && !deadline.hasExpired()) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  }
  return condition();
}

}  // namespace tagsmith
