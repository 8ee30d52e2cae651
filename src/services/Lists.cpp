#include "services/Lists.h"

#include <algorithm>

#include "services/CaseFold.h"
#include "services/Form.h"

namespace tagsmith {
namespace {

const std::string kNoItem;

}  // namespace

ItemBox::ItemBox(Form& form, ControlKind kind, std::string name, int index, bool sorted)
    : Control(form, kind, std::move(name), index), sorted_(sorted) {}

void ItemBox::AddItem(std::string_view item) {
  const auto at = sorted_ ? std::upper_bound(items_.begin(), items_.end(), item, LessWithoutCase)
                          : items_.end();
  const auto position = static_cast<int>(at - items_.begin());
  items_.emplace(at, item);
  if (listIndex_ >= position) ++listIndex_;
  Tell(Property::kItems);
}

void ItemBox::AddItems(const std::vector<std::string>& items) {
  items_.insert(items_.end(), items.begin(), items.end());
  if (sorted_) std::stable_sort(items_.begin(), items_.end(), LessWithoutCase);
  Tell(Property::kItems);
}

void ItemBox::Clear() {
  items_.clear();
  listIndex_ = -1;
  Tell(Property::kItems);
}

const std::string& ItemBox::List(int index) const {
  return index >= 0 && index < ListCount() ? items_[static_cast<std::size_t>(index)] : kNoItem;
}

void ItemBox::SetListIndex(int index) {
  if (index < 0 || index >= ListCount()) index = -1;
  const bool changed = index != listIndex_;
  listIndex_ = index;
  IndexChanged();
  Tell(Property::kSelection);
  if (changed) Raise(onClick);
}

void ItemBox::Select(int index) {
  if (!TakesInput() || index < 0 || index >= ListCount()) return;
  listIndex_ = index;
  IndexChanged();
  Tell(Property::kSelection);
  Raise(onClick);
}

ComboBox::ComboBox(Form& form, std::string name, ComboStyle style, bool sorted, int index)
    : ItemBox(form, ControlKind::kComboBox, std::move(name), index, sorted), style_(style) {}

void ComboBox::IndexChanged() {
  if (ListIndex() >= 0) text_ = List(ListIndex());
}

void ComboBox::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  Tell(Property::kText);
  Raise(onChange);
}

void ComboBox::UserEdit(std::string_view text) {
  if (!TakesInput() || style_ == ComboStyle::kDropDownList || text == text_) return;
  text_ = text;
  Raise(onChange);
}

ListBox::ListBox(Form& form, std::string name, bool sorted, int index)
    : ItemBox(form, ControlKind::kListBox, std::move(name), index, sorted) {}

void ListBox::DoubleClick(int index) {
  Select(index);
  if (TakesInput() && ListIndex() == index) Raise(onDblClick);
}

}  // namespace tagsmith
