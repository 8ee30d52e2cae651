#include "services/SSTab.h"

#include <utility>

#include "services/Form.h"

namespace tagsmith {
namespace {

const std::string kNoCaption;

}  // namespace

SSTab::SSTab(Form& form, std::string name, TabSide side, std::vector<std::string> captions)
    : Control(form, ControlKind::kSSTab, std::move(name)),
      side_(side),
      captions_(std::move(captions)) {}

const std::string& SSTab::TabCaption(int index) const {
  return index >= 0 && index < Tabs() ? captions_[static_cast<std::size_t>(index)] : kNoCaption;
}

void SSTab::SetTabCaption(int index, std::string_view caption) {
  if (index < 0 || index >= Tabs()) return;
  captions_[static_cast<std::size_t>(index)] = caption;
  Tell(Property::kCaption);
}

void SSTab::SetTab(int tab) {
  if (tab == tab_ || tab < 0 || tab >= Tabs()) return;
  const int previous = std::exchange(tab_, tab);
  Tell(Property::kTab);
  Raise(onClick, previous);
}

void SSTab::Select(int tab) {
  if (TakesInput()) SetTab(tab);
}

StatusBar::StatusBar(Form& form, std::string name)
    : Control(form, ControlKind::kStatusBar, std::move(name)) {}

void StatusBar::SetSimpleText(std::string_view text) {
  text_ = text;
  Tell(Property::kText);
}

}  // namespace tagsmith
