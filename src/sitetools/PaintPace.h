#pragma once

#include <chrono>
#include <functional>

namespace tagsmith {
class Form;
}

namespace tagsmith::sitetools {

/// Lets a form paint during a long run, some 30 times a second and no more, and never for more than
/// half of the time: what a step costs must not be the painting.
class PaintPace {
 public:
  /// `form` outlives the object.
  explicit PaintPace(Form& form) : form_(form) {}

  /// If it is time, as at the first step, calls `show`, which brings the controls up to date, and
  /// paints what of the form is waiting for it.
  void Step(const std::function<void()>& show = {});

 private:
  Form& form_;
  std::chrono::steady_clock::time_point next_{};
};

}  // namespace tagsmith::sitetools
