#pragma once

#include "services/Form.h"

namespace tagsmith {

/// An object whose lifetime is that of the hourglass pointer on a form.
class Hourglass {
 public:
  explicit Hourglass(Form& form) : form_(form) { form_.SetMousePointer(kHourglass); }
  ~Hourglass() { form_.SetMousePointer(kDefaultPointer); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Form& form_;
};

}  // namespace tagsmith
