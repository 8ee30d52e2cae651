#include "services/Menu.h"

#include "services/Form.h"

namespace tagsmith {

Menu::Menu(Form& form, std::string name, std::string caption, Menu* parent, std::string shortcut,
           int index)
    : Control(form, ControlKind::kMenu, std::move(name), index),
      caption_(std::move(caption)),
      shortcut_(std::move(shortcut)) {
  (parent != nullptr ? parent->entries_ : form.menus_).push_back(this);
}

void Menu::SetCaption(std::string_view caption) {
  caption_ = caption;
  Tell(Property::kCaption);
}

void Menu::Click() {
  if (TakesInput() && !IsSeparator()) Raise(onClick);
}

}  // namespace tagsmith
