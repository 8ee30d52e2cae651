#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/Control.h"

namespace tagsmith {

/// The items of a combo or list box: in the order of filling, or sorted without regard to case.
class ItemBox : public Control {
 public:
  void AddItem(std::string_view item);
  /// Adds many items at once; sorts once.
  void AddItems(const std::vector<std::string>& items);
  void Clear();
  int ListCount() const { return static_cast<int>(items_.size()); }
  /// The item at `index`; empty for -1 and for what lies outside the list.
  const std::string& List(int index) const;
  bool Sorted() const { return sorted_; }

  /// The chosen item, -1 for none. A write that changes it raises `onClick`, as a choice by the
  /// user does; an index outside the list counts as -1.
  int ListIndex() const { return listIndex_; }
  void SetListIndex(int index);

  Event<> onClick;

  /// The user chooses an item: unlike a write, choosing the present one again raises `onClick` too.
  void Select(int index);

 protected:
  ItemBox(Form& form, ControlKind kind, std::string name, int index, bool sorted);

  virtual void IndexChanged() {}

 private:
  std::vector<std::string> items_;
  bool sorted_;
  int listIndex_ = -1;
};

enum class ComboStyle {
  kDropDownCombo,  ///< The user may type into the field.
  kDropDownList,   ///< Only the items can be chosen.
};

class ComboBox : public ItemBox {
 public:
  ComboBox(Form& form, std::string name, ComboStyle style, bool sorted, int index = kNoIndex);

  ComboStyle Style() const { return style_; }
  /// What stands in the field: the chosen item, or what was typed or written since.
  const std::string& Text() const { return text_; }
  /// Writes the field without choosing an item. Raises `onChange` if it changes the text.
  void SetText(std::string_view text);

  Event<> onChange;

  /// The user has edited the field of a drop-down combo: this is its whole text now.
  void UserEdit(std::string_view text);

 private:
  void IndexChanged() override;

  ComboStyle style_;
  std::string text_;
};

/// A list box: one item can be chosen.
class ListBox : public ItemBox {
 public:
  ListBox(Form& form, std::string name, bool sorted, int index = kNoIndex);

  /// The chosen item, empty for none.
  const std::string& Text() const { return List(ListIndex()); }

  Event<> onDblClick;

  /// The user double-clicks the item.
  void DoubleClick(int index);
};

}  // namespace tagsmith
