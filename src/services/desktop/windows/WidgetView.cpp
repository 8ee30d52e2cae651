#include "services/desktop/windows/WidgetView.h"

#include <QFocusEvent>
#include <QTextDocument>

#include "services/Form.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/Colours.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

bool IsUsersDoing(Qt::FocusReason reason) {
  return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
         reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

void WatchWithParts(QWidget& widget, QObject& watcher) {
  widget.installEventFilter(&watcher);
  for (QObject* child : widget.children()) {
    auto* part = qobject_cast<QWidget*>(child);
    if (part != nullptr && !part->isWindow()) WatchWithParts(*part, watcher);
  }
}

}  // namespace

QString ObjectNameOf(const Control& control) {
  QString name = ToQString(control.Name());
  if (control.Index() != Control::kNoIndex) name += "_" + QString::number(control.Index());
  return name;
}

QString PlainToolTip(const QString& text) {
  return Qt::mightBeRichText(text)
             ? "<span style='white-space:pre'>" + text.toHtmlEscaped() + "</span>"
             : text;
}

QString WithoutMnemonic(std::string_view caption) {
  const QString marked = ToQString(caption);
  QString plain;
  for (qsizetype i = 0; i < marked.size(); ++i) {
    if (marked[i] == u'&' && ++i == marked.size()) break;
    plain += marked[i];
  }
  return plain;
}

QString WithoutAccessKey(std::string_view text) {
  return ToQString(text).replace(QStringLiteral("&"), QStringLiteral("&&"));
}

WidgetView::WidgetView(Control& control, ViewHost& host) : control_(control), host_(host) {}

QWidget* WidgetView::ChildParent(int /*page*/) { return widget_; }

void WidgetView::Adopt(QWidget* widget, QWidget* focusTarget) {
  widget_ = widget;
  focusTarget_ = focusTarget != nullptr ? focusTarget : widget;
  widget->setObjectName(ObjectNameOf(control_));
  if (focusTarget_->focusPolicy() != Qt::NoFocus) {
    focusTarget_->setFocusPolicy(control_.FocusOnClick() ? Qt::StrongFocus : Qt::TabFocus);
    WatchWithParts(*focusTarget_, *this);
  }
  UpdateToolTip();
  UpdateAccessibleName();
  UpdateColours();
  UpdateFont();
  widget->setEnabled(control_.Enabled());
  widget->setVisible(control_.Visible());
  control_.AttachView(this);
}

void WidgetView::StandByBounds() {
  byBounds_ = true;
  widget_->setMinimumSize(0, 0);
  widget_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

// An arrangement does not reach into a PictureBox or onto a page.
bool WidgetView::StandsInLayout() const {
  const Control* container = control_.Container();
  return control_.Owner().GetArrangement() != nullptr &&
         (container == nullptr || container->Kind() == ControlKind::kFrame);
}

QRect WidgetView::WantedPlace() const { return host_.Scale().ToPixels(control_.Bounds()); }

void WidgetView::Place() {
  if (!byBounds_ || !widget_) return;
  const QRect wanted = WantedPlace();
  const QRect shown = wanted & host_.AreaFor(*this);
  widget_->setGeometry(shown.isEmpty() ? QRect(wanted.topLeft(), QSize(0, 0)) : shown);
}

void WidgetView::Changed(Property property) {
  if (!widget_) return;
  switch (property) {
    case Property::kGeometry:
      byBounds_ ? Place() : Resized();
      break;
    case Property::kEnabled:
      widget_->setEnabled(control_.Enabled());
      break;
    case Property::kVisible:
      widget_->setVisible(control_.Visible());
      break;
    case Property::kToolTip:
      UpdateToolTip();
      UpdateAccessibleName();
      break;
    case Property::kForeColor:
    case Property::kBackColor:
      UpdateColours();
      Update(property);
      break;
    case Property::kFont:
      UpdateFont();
      break;
    case Property::kFocus:
      control_.HasFocus() ? focusTarget_->setFocus(Qt::OtherFocusReason) : host_.DropFocus();
      break;
    default:
      Update(property);
  }
}

void WidgetView::Update(Property /*property*/) {}

void WidgetView::UpdateColours() const {
  QPalette palette;
  if (control_.ForeColor() >= 0) {
    palette.setColor(widget_->foregroundRole(), ToQColor(control_.ForeColor()));
  }
  if (control_.BackColor() >= 0) {
    palette.setColor(widget_->backgroundRole(), ToQColor(control_.BackColor()));
  }
  const bool isPlain = control_.ForeColor() < 0 && control_.BackColor() < 0;
  if (isPlain && !widget_->testAttribute(Qt::WA_SetPalette)) return;
  widget_->setAutoFillBackground(control_.BackColor() >= 0);
  widget_->setPalette(palette);
}

// Qt takes all but the family from the desktop.
void WidgetView::UpdateFont() const {
  if (control_.FontName().empty() && !widget_->testAttribute(Qt::WA_SetFont)) return;
  QFont font;
  if (!control_.FontName().empty()) font.setFamily(ToQString(control_.FontName()));
  widget_->setFont(font);
}

void WidgetView::UpdateToolTip() const {
  widget_->setToolTip(PlainToolTip(ToQString(control_.ToolTipText())));
}

void WidgetView::UpdateAccessibleName() const {
  const QString name = AccessibleName();
  if (!name.isEmpty()) focusTarget_->setAccessibleName(name);
}

bool WidgetView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    if (IsUsersDoing(static_cast<QFocusEvent*>(event)->reason())) host_.UserFocused(*this);
  } else if (event->type() == QEvent::MouseButtonPress) {
    // The widget can have the keyboard already while the model knows of no focus: a window that
    // comes up gives it to its first field.
    if (control_.FocusOnClick() && !control_.HasFocus()) host_.UserFocused(*this);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace tagsmith
