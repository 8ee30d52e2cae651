#include "services/desktop/windows/StatusLine.h"

#include <QPainter>
#include <QStyle>

#include "services/desktop/windows/Colours.h"

namespace tagsmith {
namespace {

constexpr int kPadding = 4;

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QStatusBar(parent) {}

void StatusLine::SetText(const QString& text) {
  text_ = text;
  setAccessibleName(text);
  update();
}

int StatusLine::LeastHeight() const { return fontMetrics().height() + kPadding; }

void StatusLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect room = rect().adjusted(kPadding, 1, -kPadding - height(), 0);
  painter.setPen(RimColour(palette()));
  painter.drawLine(0, 0, width(), 0);
  const QString shown = fontMetrics().elidedText(text_, Qt::ElideMiddle, room.width());
  style()->drawItemText(&painter, room, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                        palette(), isEnabled(), shown, QPalette::WindowText);
}

}  // namespace tagsmith
