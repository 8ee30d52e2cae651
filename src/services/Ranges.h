#pragma once

#include <string>

#include "services/Control.h"

namespace tagsmith {

enum class Orientation { kHorizontal, kVertical };

/// A slider. `onChange` is raised at each move and by each write that changes the value. Values are
/// kept within the limits.
class Slider : public Control {
 public:
  Slider(Form& form, std::string name, Orientation orientation, int min, int max);

  Orientation GetOrientation() const { return orientation_; }
  int Min() const { return min_; }
  int Max() const { return max_; }
  int SmallChange() const { return smallChange_; }
  int LargeChange() const { return largeChange_; }
  void SetSteps(int smallChange, int largeChange);
  int Value() const { return value_; }
  void SetValue(int value);

  Event<> onChange;

  /// The user moves the slider.
  void MoveTo(int value);

 private:
  Orientation orientation_;
  int min_;
  int max_;
  int smallChange_ = 1;
  int largeChange_ = 1;
  int value_;
};

/// A progress bar. Writes are kept within the limits; a `Max` that is not above `Min` counts as
/// `Min` + 1.
class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, std::string name);

  int Min() const { return min_; }
  int Max() const { return max_; }
  int Value() const { return value_; }
  void SetMin(int min);
  void SetMax(int max);
  void SetValue(int value);

 private:
  int min_ = 0;
  int max_ = 100;
  int value_ = 0;
};

}  // namespace tagsmith
