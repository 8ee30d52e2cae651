#pragma once

#include <chrono>

namespace tagsmith {
class Form;
}

namespace tagsmith::sitetools {

/// Lets a form paint during a long run, some 30 times a second and no more: what a step costs must
/// not be the painting.
class PaintPace {
 public:
  /// `form` outlives the object.
  explicit PaintPace(Form& form) : form_(form) {}

  /// Whether it is time to paint again; then the next time is counted from now. The first step is.
  bool IsDue();
  /// Paints what of the form is waiting for it, if it is time.
  void Step();

 private:
  Form& form_;
  std::chrono::steady_clock::time_point next_{};
};

}  // namespace tagsmith::sitetools
