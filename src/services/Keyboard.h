#pragma once

#include <string_view>

namespace tagsmith {

/// Keys typed on the user's behalf.
class Keyboard {
 public:
  virtual ~Keyboard() = default;

  /// Types `keys` into whatever control has the focus and returns when they are processed. "^(z)"
  /// is Z with the Control key held; "%" stands for Alt, "+" for Shift; other characters are
  /// themselves.
  virtual void SendKeys(std::string_view keys) = 0;
};

}  // namespace tagsmith
