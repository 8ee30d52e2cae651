#pragma once

#include <string>

namespace tagsmith {

/// The system path of the folder that the running program lies in, without a backslash behind it
/// (but for the root of the drive). Throws `Error` when the system does not tell.
std::string ProgramDirectory();

}  // namespace tagsmith
