#include "services/Buttons.h"

#include "services/Form.h"

namespace tagsmith {

CommandButton::CommandButton(Form& form, std::string name, int index)
    : Control(form, ControlKind::kCommandButton, std::move(name), index) {}

void CommandButton::SetCaption(std::string_view caption) {
  caption_ = caption;
  Tell(Property::kCaption);
}

void CommandButton::SetPictureName(std::string_view name) {
  picture_ = name;
  Tell(Property::kPicture);
}

void CommandButton::Click() {
  if (TakesInput()) Raise(onClick);
}

CheckBox::CheckBox(Form& form, std::string name, std::string caption, int index)
    : Control(form, ControlKind::kCheckBox, std::move(name), index), caption_(std::move(caption)) {}

void CheckBox::SetValue(int value) {
  if (value == value_) return;
  value_ = value;
  Tell(Property::kValue);
  Raise(onClick);
}

void CheckBox::Click() {
  if (TakesInput()) SetValue(value_ == 0 ? 1 : 0);
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, int index)
    : Control(form, ControlKind::kOptionButton, std::move(name), index),
      caption_(std::move(caption)) {}

void OptionButton::ClearOthers() {
  for (Control* control : Owner().Controls()) {
    if (control == this || control->Kind() != ControlKind::kOptionButton) continue;
    if (control->Container() == Container()) static_cast<OptionButton*>(control)->SetValue(false);
  }
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  if (value) ClearOthers();
  Tell(Property::kValue);
  if (value) Raise(onClick);
}

void OptionButton::Click() {
  if (TakesInput()) SetValue(true);
}

}  // namespace tagsmith
