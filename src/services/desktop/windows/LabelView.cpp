#include "services/desktop/windows/LabelView.h"

#include <QMouseEvent>
#include <algorithm>

#include "services/Form.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/Colours.h"
#include "services/desktop/windows/MouseButtons.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

// A caption that is longer stands in several lines.
constexpr qsizetype kLongestLine = 60;
constexpr int kLegibleLightness = 170;

}  // namespace

LabelView::LabelView(Label& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), label_(new QLabel(&parent)) {
  const bool inLayout = StandsInLayout();
  label_->setTextFormat(Qt::PlainText);
  UpdateText();
  label_->setWordWrap(!inLayout || label_->text().size() > kLongestLine);
  if (!inLayout) label_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  Adopt(label_);
  UpdateColour();
  if (inLayout && !label_->wordWrap()) captionWidth_ = label_->sizeHint().width();
  Resized();
  if (control.MousePointer() == kSizeWestEast) label_->setCursor(Qt::SplitHCursor);
  label_->installEventFilter(this);
}

// A caption that grows later makes do with the room there is.
void LabelView::Resized() {
  if (!StandsInLayout()) return;
  label_->setMinimumWidth(std::max(captionWidth_, Host().Scale().ToPixels(model_.Width())));
}

bool LabelView::IsHandle() const {
  return model_.onMouseDown.IsBound() || model_.onMouseMove.IsBound() || model_.onMouseUp.IsBound();
}

void LabelView::LinkTo(QWidget* field) {
  const bool hasKey =
      !model_.PlainCaption() && ToQString(model_.Caption()) != WithoutMnemonic(model_.Caption());
  if (hasKey) {
    label_->setBuddy(field);
    UpdateText();
  } else if (field != nullptr && field->accessibleName().isEmpty()) {
    field->setAccessibleName(label_->text());
  }
}

// Without a buddy the widget shows ampersands as they are.
void LabelView::UpdateText() {
  const bool asItStands = label_->buddy() != nullptr || model_.PlainCaption();
  label_->setText(asItStands ? ToQString(model_.Caption()) : WithoutMnemonic(model_.Caption()));
}

// A dark text colour that was meant for a light window is lightened on a dark one.
void LabelView::UpdateColour() {
  const QPalette palette = label_->palette();
  const bool ownGround =
      model_.Container() != nullptr && model_.Container()->Kind() == ControlKind::kPictureBox;
  if (model_.ForeColor() < 0 || model_.BackColor() >= 0 || ownGround) return;
  const bool isDark = palette.color(QPalette::Window).lightness() <
                      palette.color(QPalette::Active, QPalette::ButtonText).lightness();
  QColor colour = ToQColor(model_.ForeColor());
  if (!isDark || colour.lightness() >= kLegibleLightness) return;
  colour.setHsl(colour.hslHue(), colour.hslSaturation(), kLegibleLightness);
  QPalette lightened = palette;
  lightened.setColor(label_->foregroundRole(), colour);
  label_->setPalette(lightened);
}

void LabelView::Update(Property property) {
  if (property == Property::kCaption) UpdateText();
  if (property == Property::kForeColor) UpdateColour();
}

bool LabelView::PassMouse(const QMouseEvent& event) {
  const TwipsScale& scale = Host().Scale();
  const Twips x = scale.ToTwips(event.position().toPoint().x());
  const Twips y = scale.ToTwips(event.position().toPoint().y());
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      Host().Act(
          [this, x, y, button = ButtonNumber(event.button())] { model_.MouseDown(button, x, y); });
      return true;
    case QEvent::MouseMove:
      Host().Act(
          [this, x, y, held = ButtonNumbers(event.buttons())] { model_.MouseMove(held, x, y); });
      return true;
    case QEvent::MouseButtonRelease:
      Host().Act(
          [this, x, y, button = ButtonNumber(event.button())] { model_.MouseUp(button, x, y); });
      return true;
    default:
      return false;
  }
}

bool LabelView::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return IsHandle() && PassMouse(*static_cast<QMouseEvent*>(event));
    default:
      return WidgetView::eventFilter(watched, event);
  }
}

}  // namespace tagsmith
