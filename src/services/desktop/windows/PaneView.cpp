#include "services/desktop/windows/PaneView.h"

#include <QApplication>
#include <QKeyEvent>

#include "services/desktop/editpane/QtTextPane.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

constexpr Twips kLeastWidth = 3600;
constexpr Twips kLeastHeight = 1500;

}  // namespace

PaneView::PaneView(RichTextBox& control, ViewHost& host, QWidget& parent) : ViewOf(control, host) {
  auto& pane = static_cast<QtTextPane&>(control.Pane());
  QWidget* widget = pane.Widget();
  widget->setParent(&parent);
  widget->setMinimumSize(host.Scale().ToPixels(std::min(control.Width(), kLeastWidth),
                                               std::min(control.Height(), kLeastHeight)));
  Adopt(widget);
  pane.SetControlDropHandler([self = QPointer<PaneView>(this)](QPoint place) {
    if (self) self->TakeDrop(place);
  });
}

void PaneView::TakeDrop(QPoint place) {
  Control* source = Host().Dragged();
  if (source == nullptr) return;
  const TwipsScale& scale = Host().Scale();
  Host().Act([this, source, x = scale.ToTwips(place.x()), y = scale.ToTwips(place.y())] {
    model_.Drop(*source, x, y);
  });
}

bool PaneView::eventFilter(QObject* watched, QEvent* event) {
  // The source view would keep Escape to itself.
  if (event->type() == QEvent::KeyPress && watched == Widget() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    QCoreApplication::sendEvent(Widget()->window(), event);
    return true;
  }
  return WidgetView::eventFilter(watched, event);
}

}  // namespace tagsmith
