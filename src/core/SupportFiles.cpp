#include "core/SupportFiles.h"

#include <string>

#include "core/Application.h"
#include "core/general1.h"
#include "services/FileSystem.h"

namespace tagsmith {

void CopyMenuSupportFiles(Application& application, std::string_view page) {
  for (const char* name : {"true.gif", "false.gif", "list.js"}) {
    const std::string target = GetPathOnly(page) + name;
    if (FileExists(application, target)) continue;
    application.platform.files.CopyFile(AddBackslash(application.Path()) + name, target);
  }
}

}  // namespace tagsmith
