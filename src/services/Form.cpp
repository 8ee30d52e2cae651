#include "services/Form.h"

#include <algorithm>
#include <stdexcept>

#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/Menu.h"
#include "services/Platform.h"

namespace tagsmith {
namespace {

// Makes each group's frame the container of the controls in it.
void PutIntoFrames(const Arrangement& node, Control* frame) {
  if (node.control != nullptr && frame != nullptr) node.control->SetContainer(*frame);
  if (node.kind == Arrangement::Kind::kGroup) frame = node.control;
  for (const Arrangement& child : node.children) PutIntoFrames(child, frame);
}

}  // namespace

Form::Form(Platform& platform, std::string name) : platform_(platform), name_(std::move(name)) {}

Form::~Form() {
  view_.reset();
  Pool().Forget(*this);
}

FormPool& Form::Pool() const { return platform_.forms; }

void Form::Guard(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const std::exception& error) {
    platform_.dialogs.MsgBox(*this, error.what(), kOkOnly, kApplicationTitle);
  }
}

void Form::ThrowMissing(std::string_view name, int index) const {
  throw std::logic_error(name_ + " has no such control: " + std::string(name) +
                         (index == Control::kNoIndex ? "" : "(" + std::to_string(index) + ")"));
}

// --- Life ---

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  Raise(onLoad);
}

void Form::Show(Modality modality, Form* owner) {
  const FormPool::Busy busy(Pool());
  Load();
  if (!loaded_) return;  // Unloaded itself while loading.
  if (!view_) view_ = platform_.windows.MakeFormView(*this);
  visible_ = true;
  Form* const before = Pool().Active();
  Pool().SetActive(this);
  if (modality == Modality::kModeless) {
    view_->Show();
    return;
  }
  view_->RunModal(owner != nullptr ? owner : before);
  if (Pool().Active() == this || Pool().Active() == nullptr) Pool().SetActive(before);
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  if (view_) view_->Close();
}

bool Form::Unload() {
  if (!loaded_ || unloading_) return true;
  const FormPool::Busy busy(Pool());
  unloading_ = true;
  bool cancel = false;
  if (onUnload.IsBound()) {
    Guard([this, &cancel] { onUnload.Bound()(cancel); });
  }
  unloading_ = false;
  if (cancel) return false;
  loaded_ = false;
  Hide();
  Pool().Forget(*this);
  Pool().Retire(*this);
  return true;
}

// --- Looks ---

void Form::Tell(Property property) {
  if (view_) view_->Changed(property);
}

void Form::SetCaption(std::string_view caption) {
  caption_ = caption;
  Tell(Property::kCaption);
}

void Form::SetMousePointer(int pointer) {
  mousePointer_ = pointer;
  Tell(Property::kMousePointer);
}

void Form::SetOnTop(bool onTop) {
  onTop_ = onTop;
  Tell(Property::kOnTop);
}

void Form::Refresh() {
  if (view_) view_->RepaintNow();
}

// --- Geometry ---

void Form::Resized(Twips width, Twips height) {
  width = std::max(width, kFormExtraWidth);
  height = std::max(height, kFormExtraHeight);
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  if (loaded_) Raise(onResize);
}

void Form::SetWidth(Twips width) {
  if (width == width_) return;
  Resized(width, height_);
  Tell(Property::kGeometry);
}

void Form::SetHeight(Twips height) {
  if (height == height_) return;
  Resized(width_, height);
  Tell(Property::kGeometry);
}

void Form::UserResize(Twips width, Twips height) { Resized(width, height); }

void Form::SetArrangement(Arrangement arrangement) {
  PutIntoFrames(arrangement, nullptr);
  arrangement_ = std::make_unique<Arrangement>(std::move(arrangement));
}

// --- Controls ---

void Form::Register(Control& control) {
  controls_.push_back(&control);
  if (view_) view_->ControlsChanged();
}

void Form::Unregister(Control& control) {
  std::erase(controls_, &control);
  std::erase_if(menus_, [&control](Menu* menu) { return static_cast<Control*>(menu) == &control; });
  if (activeControl_ == &control) activeControl_ = nullptr;
  if (initialFocus_ == &control) initialFocus_ = nullptr;
}

Control* Form::Find(std::string_view name, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return control->Index() == index && control->Name() == name;
  });
  return found == controls_.end() ? nullptr : *found;
}

void Form::GiveFocus(Control& control, bool byUser) {
  const bool hadIt = activeControl_ == &control && Pool().Active() == this;
  if (!hadIt) {
    Control* const before = Pool().Active() != nullptr ? Pool().Active()->activeControl_ : nullptr;
    const bool otherForm = Pool().Active() != this;
    activeControl_ = &control;
    Pool().SetActive(this);
    if (!byUser && otherForm && view_) view_->BringToFront();
    if (before != nullptr && before != &control) before->Owner().Raise(before->onLostFocus);
  }
  if (!byUser) control.Tell(Property::kFocus);
  if (!hadIt) Raise(control.onGotFocus);
}

void Form::ClearFocus() {
  Control* const before = std::exchange(activeControl_, nullptr);
  if (before != nullptr) before->Tell(Property::kFocus);
}

// --- The user's actions ---

void Form::UserActivate() { Pool().SetActive(this); }

void Form::UserClose() {
  const FormPool::Busy busy(Pool());
  Unload();
}

}  // namespace tagsmith
