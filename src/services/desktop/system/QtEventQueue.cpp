#include "services/desktop/system/QtEventQueue.h"

#include <QCoreApplication>
#include <cstdlib>

namespace tagsmith {
namespace {

constexpr int kDeepest = 16;

// Counts down also when a handler throws.
class Entered {
 public:
  explicit Entered(int& depth) : depth_(depth) { ++depth_; }
  ~Entered() { --depth_; }
  Entered(const Entered&) = delete;
  Entered& operator=(const Entered&) = delete;

 private:
  int& depth_;
};

}  // namespace

void QtEventQueue::DoEvents() {
  if (depth_ >= kDeepest) return;
  const Entered entered(depth_);
  QCoreApplication::processEvents();
}

void QtEventQueue::EndProgram() { std::_Exit(EXIT_FAILURE); }

}  // namespace tagsmith
