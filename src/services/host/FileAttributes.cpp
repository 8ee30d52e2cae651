#include "services/host/FileAttributes.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string_view>
#include <vector>

#include "services/host/HostError.h"

namespace tagsmith {
namespace {

// POSIX access control lists lie in this attribute on Linux (acl(5), attr(5)).
constexpr const char* kAccessList = "system.posix_acl_access";

// Statements about the bytes, which the kernel drops or renews when the bytes change.
constexpr std::array<std::string_view, 3> kAboutTheBytes = {"security.capability", "security.evm",
                                                            "security.ima"};

constexpr mode_t kPermissionBits = 07777;

// Runs one of the calls that fill a buffer and tell how long their answer is.
template <class Call>
std::optional<std::string> Fetch(Call call) {
  std::string answer;
  for (;;) {
    const ssize_t needed = call(nullptr, 0);
    if (needed < 0) return std::nullopt;
    if (needed == 0) return std::string();
    answer.resize(static_cast<std::size_t>(needed));
    const ssize_t length = call(answer.data(), answer.size());
    if (length >= 0) {
      answer.resize(static_cast<std::size_t>(length));
      return answer;
    }
    if (errno != ERANGE) return std::nullopt;
  }
}

std::vector<std::string> AttributeNames(const std::string& path) {
  const auto list =
      Fetch([&](char* into, std::size_t size) { return ::listxattr(path.c_str(), into, size); });
  if (!list && errno != EOPNOTSUPP) throw SystemError(EPERM);
  std::vector<std::string> names;
  for (std::size_t start = 0; list && start < list->size();) {
    names.emplace_back(list->c_str() + start);
    start += names.back().size() + 1;
  }
  return names;
}

void CopyAttribute(const std::string& from, const std::string& name, int to) {
  if (std::ranges::find(kAboutTheBytes, name) != kAboutTheBytes.end()) return;
  const auto value = Fetch([&](char* into, std::size_t size) {
    return ::getxattr(from.c_str(), name.c_str(), into, size);
  });
  if (!value) throw SystemError(EPERM);
  const auto present = Fetch(
      [&](char* into, std::size_t size) { return ::fgetxattr(to, name.c_str(), into, size); });
  if (present == value) return;
  if (::fsetxattr(to, name.c_str(), value->data(), value->size(), 0) != 0) {
    throw SystemError(EPERM);
  }
}

void CopyExtendedAttributes(const std::string& from, int to) {
  const std::vector<std::string> names = AttributeNames(from);
  // A new file may have inherited an access list from its folder.
  if (std::ranges::find(names, kAccessList) == names.end()) ::fremovexattr(to, kAccessList);
  for (const std::string& name : names) CopyAttribute(from, name, to);
}

}  // namespace

void CopyAttributes(const std::string& from, const FileStatus& status, const FileDescriptor& to) {
  const FileStatus fresh = StatusOf(to);
  // The owner comes first: changing it may take bits off the mode.
  if ((fresh.st_uid != status.st_uid || fresh.st_gid != status.st_gid) &&
      ::fchown(to.Number(), status.st_uid, status.st_gid) != 0) {
    throw SystemError(EPERM);
  }
  CopyExtendedAttributes(from, to.Number());
  if (::fchmod(to.Number(), status.st_mode & kPermissionBits) != 0) throw SystemError(EPERM);
}

}  // namespace tagsmith
