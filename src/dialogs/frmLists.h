#pragma once

#include "dialogs/frmListItems.h"
#include "services/ControlArray.h"

namespace tagsmith::dialogs {

/// What `gListKind` holds while there is no list to insert.
constexpr int kNoList = -1;

/// Asks for a kind of list, its numbering and its number of items: `gListKind` (kNoList after a
/// cancel), `gListStart` and `gListItemCount`.
class frmLists : public Form {
 public:
  explicit frmLists(Application& application);

  Frame fraType{*this, "fraType", "Choose a Type of List"};
  ControlArray<OptionButton> optList{
      *this, "optList", {"Ordered (Numbers)", "Unordered (Bullets)", "Definition"}};
  Frame fraOptions{*this, "fraOptions", "Start With"};
  ControlArray<OptionButton> optAttributes{
      *this,
      "optAttributes",
      {"Numbers", "Roman Numerals", "Uppercase Letters", "Lowercase Letters"}};
  Frame fraNumber{*this, "fraNumber", "Number of List Items"};
  Slider MySlider{*this, "MySlider", Orientation::kHorizontal, kLeastListItems, kMostListItems};
  Label lblItems{*this, "lblItems", "1"};
  CommandButton cmdInsert{*this, "cmdInsert"};
  CommandButton cmdCancel{*this, "cmdCancel"};

 private:
  void Form_Load();
  void cmdInsert_Click();
  void cmdCancel_Click();

  Application& application_;
};

}  // namespace tagsmith::dialogs
