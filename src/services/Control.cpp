#include "services/Control.h"

#include <algorithm>

#include "services/Form.h"

namespace tagsmith {

Control::Control(Form& form, ControlKind kind, std::string name, int index)
    : form_(form), kind_(kind), name_(std::move(name)), index_(index) {
  form_.Register(*this);
}

Control::~Control() { form_.Unregister(*this); }

void Control::Tell(Property property) {
  if (view_ != nullptr) view_->Changed(property);
}

void Control::SetLeft(Twips left) { Move({left, bounds_.top, bounds_.width, bounds_.height}); }
void Control::SetTop(Twips top) { Move({bounds_.left, top, bounds_.width, bounds_.height}); }

void Control::SetWidth(Twips width) { Move({bounds_.left, bounds_.top, width, bounds_.height}); }

void Control::SetHeight(Twips height) { Move({bounds_.left, bounds_.top, bounds_.width, height}); }

void Control::Move(const TwipsRect& bounds) {
  const TwipsRect next = {bounds.left, bounds.top, std::max(bounds.width, 0),
                          std::max(bounds.height, 0)};
  if (next == bounds_) return;
  bounds_ = next;
  Tell(Property::kGeometry);
}

void Control::SetContainer(Control& container, int page) {
  container_ = &container;
  page_ = page;
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Tell(Property::kEnabled);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Tell(Property::kVisible);
}

void Control::SetToolTipText(std::string_view text) {
  toolTip_ = text;
  Tell(Property::kToolTip);
}

void Control::SetForeColor(Colour colour) {
  foreColor_ = colour;
  Tell(Property::kForeColor);
}

void Control::SetBackColor(Colour colour) {
  backColor_ = colour;
  Tell(Property::kBackColor);
}

void Control::SetFontName(std::string_view name) {
  fontName_ = name;
  Tell(Property::kFont);
}

void Control::SetFocus() {
  if (TakesInput() && form_.IsVisible()) form_.GiveFocus(*this, /*byUser=*/false);
}

bool Control::HasFocus() const { return form_.ActiveControl() == this; }

void Control::UserFocus() {
  if (TakesInput() && form_.IsVisible()) form_.GiveFocus(*this, /*byUser=*/true);
}

}  // namespace tagsmith
