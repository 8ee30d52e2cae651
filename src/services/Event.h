#pragma once

#include <functional>
#include <utility>

namespace tagsmith {

/// An event of a control or form: a slot for one handler. Only its owner raises it, through
/// `Form::Raise`, which keeps the owner alive until the handler is done and lets no error out.
template <class... Args>
class Event {
 public:
  using Handler = std::function<void(Args...)>;

  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  bool IsBound() const { return static_cast<bool>(handler_); }
  const Handler& Bound() const { return handler_; }

 private:
  Handler handler_;
};

}  // namespace tagsmith
