#pragma once

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace tagsmith::bench {

/// Ends the program as soon as a window with the given name has painted itself whole.
class EndAtFirstPaint : public QObject {
 public:
  explicit EndAtFirstPaint(QString windowName) : windowName_(std::move(windowName)) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::Paint && receiver->isWidgetType()) {
      const QWidget* window = static_cast<QWidget*>(receiver)->window();
      // The children are painted within the same event: whatever comes next finds all done.
      if (window->objectName() == windowName_) {
        QTimer::singleShot(0, [] { std::_Exit(0); });
      }
    }
    return false;
  }

 private:
  QString windowName_;
};

}  // namespace tagsmith::bench
