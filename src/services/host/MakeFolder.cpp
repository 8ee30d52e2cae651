#include "services/host/MakeFolder.h"

#include <sys/stat.h>

#include <cerrno>
#include <system_error>

#include "services/Error.h"
#include "services/host/HostError.h"

namespace tagsmith {

void MakeFolder(const std::filesystem::path& folder) {
  constexpr mode_t kForTheUserAlone = 0700;
  std::error_code ignored;
  if (folder.empty() || std::filesystem::is_directory(folder, ignored)) return;
  MakeFolder(folder.parent_path());
  if (::mkdir(folder.c_str(), kForTheUserAlone) == 0) return;
  const int reason = errno;
  // Another program may have made it meanwhile.
  if (reason == EEXIST && std::filesystem::is_directory(folder, ignored)) return;
  const Error error = SystemError(reason == EEXIST ? ENOTDIR : reason);
  throw Error(error.Code(), folder.string() + ": " + error.what());
}

}  // namespace tagsmith
