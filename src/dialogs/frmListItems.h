#pragma once

#include "services/Buttons.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Ranges.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::dialogs {

/// How many items a list can be given.
constexpr int kLeastListItems = 1;
constexpr int kMostListItems = 25;

/// Asks for a number of items, which is in `gListItemCount` after OK. There is no cancel: closed by
/// its title bar it leaves the number of the use before.
class frmListItems : public Form {
 public:
  explicit frmListItems(Application& application);

  Slider MySlider{*this, "MySlider", Orientation::kHorizontal, kLeastListItems, kMostListItems};
  Label lblItems{*this, "lblItems", "1"};
  CommandButton cmdOK{*this, "cmdOK"};
};

}  // namespace tagsmith::dialogs
