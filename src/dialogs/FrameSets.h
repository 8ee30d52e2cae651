#pragma once

#include <string>

namespace tagsmith::dialogs {

/// How many layouts there are.
constexpr int kFrameSetCount = 3;

/// A whole page that consists of frames. `layout` counts from 0: a left column with two rows on the
/// right, with three rows of which the last is low, or two columns of two rows each. Lines are
/// separated by CR LF; none stands behind the last. Throws std::out_of_range for any other layout.
std::string FrameSetPage(int layout);

}  // namespace tagsmith::dialogs
