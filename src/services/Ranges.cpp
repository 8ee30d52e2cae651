#include "services/Ranges.h"

#include <algorithm>

#include "services/Form.h"

namespace tagsmith {

Slider::Slider(Form& form, std::string name, Orientation orientation, int min, int max)
    : Control(form, ControlKind::kSlider, std::move(name)),
      orientation_(orientation),
      min_(min),
      max_(std::max(min, max)),
      value_(min) {}

void Slider::SetSteps(int smallChange, int largeChange) {
  smallChange_ = smallChange;
  largeChange_ = largeChange;
  Tell(Property::kLimits);
}

void Slider::SetValue(int value) {
  value = std::clamp(value, min_, max_);
  if (value == value_) return;
  value_ = value;
  Tell(Property::kValue);
  Raise(onChange);
}

void Slider::MoveTo(int value) {
  if (TakesInput()) SetValue(value);
}

ProgressBar::ProgressBar(Form& form, std::string name)
    : Control(form, ControlKind::kProgressBar, std::move(name)) {}

void ProgressBar::SetMin(int min) {
  min_ = min;
  SetMax(max_);
}

void ProgressBar::SetMax(int max) {
  max_ = std::max(max, min_ + 1);
  Tell(Property::kLimits);
  SetValue(value_);
}

void ProgressBar::SetValue(int value) {
  value_ = std::clamp(value, min_, max_);
  Tell(Property::kValue);
}

}  // namespace tagsmith
