#pragma once

#include <string_view>

namespace tagsmith {

class Application;

/// Puts what a page with an expandable menu needs beside it: the pictures of an open and of a
/// closed topic and the script, copied from the program's folder. `page` is the page's path; one
/// without a backslash lies in the current directory. A file that is there already stays as it is.
/// Throws `Error` at the first one that cannot be copied.
void CopyMenuSupportFiles(Application& application, std::string_view page);

}  // namespace tagsmith
