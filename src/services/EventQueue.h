#pragma once

namespace tagsmith {

/// The desktop's event queue, as long commands see it.
class EventQueue {
 public:
  virtual ~EventQueue() = default;

  /// Handles the events that are waiting, the user's included, and returns.
  virtual void DoEvents() = 0;
};

}  // namespace tagsmith
