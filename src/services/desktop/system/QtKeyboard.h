#pragma once

#include <string_view>

#include "services/Keyboard.h"

namespace tagsmith {

/// Types straight into the widget that has the focus; nothing happens when there is none. Key
/// notation as in KeyNotation.h.
class QtKeyboard final : public Keyboard {
 public:
  void SendKeys(std::string_view keys) override;
};

}  // namespace tagsmith
