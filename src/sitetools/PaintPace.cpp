#include "sitetools/PaintPace.h"

#include "services/Form.h"

namespace tagsmith::sitetools {

bool PaintPace::IsDue() {
  constexpr std::chrono::milliseconds kInterval(33);
  const auto now = std::chrono::steady_clock::now();
  if (now < next_) return false;
  next_ = now + kInterval;
  return true;
}

void PaintPace::Step() {
  if (IsDue()) form_.Refresh();
}

}  // namespace tagsmith::sitetools
