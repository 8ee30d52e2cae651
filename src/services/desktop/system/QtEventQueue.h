#pragma once

#include "services/EventQueue.h"

namespace tagsmith {

/// A call made from inside too many others returns at once: a key held down over a long command
/// cannot exhaust the stack.
class QtEventQueue final : public EventQueue {
 public:
  void DoEvents() override;
  [[noreturn]] void EndProgram() override;

 private:
  int depth_ = 0;
};

}  // namespace tagsmith
