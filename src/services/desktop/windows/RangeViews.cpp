#include "services/desktop/windows/RangeViews.h"

#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

constexpr Twips kSliderLength = 2400;

}  // namespace

SliderView::SliderView(Slider& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), slider_(new QSlider(&parent)) {
  const bool level = control.GetOrientation() == Orientation::kHorizontal;
  slider_->setOrientation(level ? Qt::Horizontal : Qt::Vertical);
  slider_->setTickPosition(QSlider::TicksBelow);
  // The smallest value of an upright slider is at its top.
  slider_->setInvertedAppearance(!level);
  slider_->setInvertedControls(!level);
  const int length = host.Scale().ToPixels(kSliderLength);
  level ? slider_->setMinimumWidth(length) : slider_->setMinimumHeight(length);
  Update(Property::kLimits);
  Adopt(slider_);
  connect(slider_, &QSlider::valueChanged, this, [this](int value) {
    if (!showing_) Host().Act([this, value] { model_.MoveTo(value); });
  });
}

void SliderView::Update(Property /*property*/) {
  showing_ = true;
  slider_->setRange(model_.Min(), model_.Max());
  slider_->setSingleStep(model_.SmallChange());
  slider_->setPageStep(model_.LargeChange());
  slider_->setValue(model_.Value());
  showing_ = false;
}

QString SliderView::AccessibleName() const { return ToQString(model_.ToolTipText()); }

ProgressBarView::ProgressBarView(ProgressBar& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), bar_(new QProgressBar(&parent)) {
  Update(Property::kLimits);
  Adopt(bar_);
}

void ProgressBarView::Update(Property /*property*/) {
  bar_->setRange(model_.Min(), model_.Max());
  bar_->setValue(model_.Value());
}

}  // namespace tagsmith
