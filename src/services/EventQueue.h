#pragma once

namespace tagsmith {

/// The desktop's event queue, as long commands see it.
class EventQueue {
 public:
  virtual ~EventQueue() = default;

  /// Handles the events that are waiting, the user's included, and returns.
  virtual void DoEvents() = 0;

  /// Ends the program at once, as after a failure that leaves nothing to go on with: no form is
  /// unloaded, nothing is asked or stored. Does not return on a real desktop.
  virtual void EndProgram() = 0;
};

}  // namespace tagsmith
