#pragma once

#include <string>

#include "services/host/DriveMap.h"

namespace tagsmith {

/// What stands behind the program's name on its command line, as one path: all arguments, joined by
/// one blank, as a system path. A relative host path is taken in `currentDirectory` (a system
/// path); one that begins with a drive letter and a separator is a system path already; an argument
/// "file:///home/ann/a%20page.html" is that file's host path. Blanks at both ends stay, and so does
/// an empty tail. `argv[0]` is the program.
std::string CommandTail(int argc, const char* const* argv, const DriveMap& drives,
                        const std::string& currentDirectory);

}  // namespace tagsmith
