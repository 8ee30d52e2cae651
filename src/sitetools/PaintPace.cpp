#include "sitetools/PaintPace.h"

#include <algorithm>

#include "services/Form.h"

namespace tagsmith::sitetools {

void PaintPace::Step(const std::function<void()>& show) {
  using Clock = std::chrono::steady_clock;
  constexpr Clock::duration kInterval = std::chrono::milliseconds(33);
  const auto start = Clock::now();
  if (start < next_) return;
  if (show) show();
  form_.Refresh();
  const auto end = Clock::now();
  next_ = end + std::max(kInterval, end - start);
}

}  // namespace tagsmith::sitetools
