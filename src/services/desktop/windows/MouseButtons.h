#pragma once

#include <Qt>

#include "services/Control.h"

namespace tagsmith {

/// The buttons held, as the contract's mouse events count them.
inline int ButtonNumbers(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? kLeftButton : 0) |
         (buttons.testFlag(Qt::RightButton) ? kRightButton : 0) |
         (buttons.testFlag(Qt::MiddleButton) ? kMiddleButton : 0);
}

inline int ButtonNumber(Qt::MouseButton button) { return ButtonNumbers(button); }

}  // namespace tagsmith
