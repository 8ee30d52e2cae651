#include "services/desktop/windows/FormWidget.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScrollArea>
#include <QVBoxLayout>
#include <utility>

namespace tagsmith {
namespace {

// `slot` is copied: the call may take the window's events away.
template <class... Args>
void Tell(std::function<void(Args...)> slot, std::type_identity_t<Args>... arguments) {
  if (slot) slot(arguments...);
}

}  // namespace

FormWidget::FormWidget(WindowEvents events)
    : events_(std::move(events)), client_(new QWidget(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  layout->addWidget(client_);
  client_->installEventFilter(this);
}

QMenuBar& FormWidget::MenuBar() {
  if (menuBar_ == nullptr) {
    menuBar_ = new QMenuBar(this);
    layout()->setMenuBar(menuBar_);
  }
  return *menuBar_;
}

int FormWidget::MenuWidth() const {
  return menuBar_ == nullptr || menuBar_->isNativeMenuBar() ? 0 : menuBar_->sizeHint().width();
}

QSize FormWidget::SizeFor(QSize client) const {
  if (MenuWidth() == 0) return client;
  return client + QSize(0, menuBar_->heightForWidth(client.width()));
}

void FormWidget::MakeScrollable() {
  auto* area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  delete layout()->replaceWidget(client_, area);
  area->setWidget(client_);
}

bool FormWidget::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  if (event->type() == QEvent::WindowActivate) Tell(events_.activated);
  if (event->type() == QEvent::WindowStateChange) Tell(events_.minimized, isMinimized());
  return handled;
}

void FormWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  Tell(events_.closeWanted);
}

void FormWidget::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
  if (isPlain && event->key() == Qt::Key_Escape) {
    Tell(events_.escapePressed);
  } else if (isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    Tell(events_.enterPressed);
  } else {
    QWidget::keyPressEvent(event);
  }
}

bool FormWidget::eventFilter(QObject* watched, QEvent* event) {
  if (watched == client_ && event->type() == QEvent::Resize) {
    Tell(events_.clientResized, static_cast<QResizeEvent*>(event)->size());
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace tagsmith
