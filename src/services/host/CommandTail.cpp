#include "services/host/CommandTail.h"

#include <QByteArray>
#include <string_view>

#include "services/host/PathLookup.h"

namespace tagsmith {
namespace {

// The path of a "file:" URL of this computer (RFC 8089, section 2); anything else as it is.
std::string PathOfUrl(std::string_view argument) {
  constexpr std::string_view kScheme = "file://";
  constexpr std::string_view kLocalHost = "localhost";
  if (!argument.starts_with(kScheme)) return std::string(argument);
  std::string_view encoded = argument.substr(kScheme.size());
  if (encoded.starts_with(kLocalHost)) encoded.remove_prefix(kLocalHost.size());
  if (!encoded.starts_with('/')) return std::string(argument);
  const QByteArray bytes(encoded.data(), static_cast<qsizetype>(encoded.size()));
  std::string path = QByteArray::fromPercentEncoding(bytes).toStdString();
  return path.find('\0') == std::string::npos ? path : std::string(argument);
}

std::string JoinArguments(int argc, const char* const* argv) {
  std::string tail;
  for (int i = 1; i < argc; ++i) {
    if (i > 1) tail += ' ';
    tail += PathOfUrl(argv[i]);
  }
  return tail;
}

bool IsSystemPath(std::string_view path) {
  return DriveMap::IsFullPath(path) && (path.size() == 2 || path[2] == '\\' || path[2] == '/');
}

// The full form of a host path. Leading ".." leave the current directory, whose own path has no
// symbolic links; behind a name they stay, since that name may be one.
std::string FullHostPath(std::string_view path, std::string folder) {
  if (path.starts_with('/')) folder.clear();
  while (folder.ends_with('/')) folder.pop_back();
  bool named = false;
  for (const std::string_view component : PathComponents(path)) {
    if (component == ".." && !named) {
      if (!folder.empty()) folder.erase(folder.rfind('/'));
      continue;
    }
    named = true;
    folder += '/';
    folder += component;
  }
  return folder.empty() ? "/" : folder;
}

}  // namespace

std::string CommandTail(int argc, const char* const* argv, const DriveMap& drives,
                        const std::string& currentDirectory) {
  std::string tail = JoinArguments(argc, argv);
  const std::size_t start = tail.find_first_not_of(' ');
  if (start == std::string::npos) return tail;
  const std::size_t length = tail.find_last_not_of(' ') + 1 - start;
  const std::string path = tail.substr(start, length);
  if (IsSystemPath(path)) return tail;
  const std::string folder = drives.ToHostPath(currentDirectory).value_or("/");
  return tail.replace(start, length, DriveMap::ToSystemPath(FullHostPath(path, folder)));
}

}  // namespace tagsmith
