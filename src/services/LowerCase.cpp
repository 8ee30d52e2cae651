#include "services/LowerCase.h"

#include "services/CaseFold.h"

namespace tagsmith {

std::string LowerCase(std::string_view text) { return FoldCase(text); }

}  // namespace tagsmith
