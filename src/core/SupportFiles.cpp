#include "core/SupportFiles.h"

#include <string>

#include "core/Application.h"
#include "core/general1.h"
#include "services/FileSystem.h"

namespace tagsmith {
namespace {

// A path that was typed may be in the host's own form.
std::string FolderOf(std::string_view path) {
  return std::string(path.substr(0, path.find_last_of("\\/") + 1));
}

}  // namespace

void CopyMenuSupportFiles(Application& application, std::string_view page) {
  for (const char* name : {"true.gif", "false.gif", "list.js"}) {
    const std::string target = FolderOf(page) + name;
    if (FileExists(application, target)) continue;
    application.platform.files.CopyFile(AddBackslash(application.Path()) + name, target);
  }
}

}  // namespace tagsmith
