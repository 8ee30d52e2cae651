#include "integration/Install.h"

namespace tagsmith::integration {

void Install(Application& /*application*/) {}

}  // namespace tagsmith::integration
