#include "services/host/DesktopPlaces.h"

#include <unistd.h>

#include <QFile>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <system_error>

#include "services/host/HostError.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> ToStrings(const QList<QByteArray>& texts) {
  std::vector<std::string> strings;
  for (const QByteArray& text : texts) {
    if (!text.isEmpty()) strings.push_back(text.toStdString());
  }
  return strings;
}

std::vector<std::string> Folders(QStandardPaths::StandardLocation location) {
  std::vector<std::string> folders;
  for (const QString& folder : QStandardPaths::standardLocations(location)) {
    folders.push_back(QFile::encodeName(folder).toStdString());
  }
  return folders;
}

// The file of a program that has been replaced while it runs is called "... (deleted)".
std::string RunningProgram() {
  constexpr std::string_view kDeleted = " (deleted)";
  std::error_code error;
  std::string path = fs::read_symlink("/proc/self/exe", error);
  if (error) throw SystemError(error.value());
  if (path.ends_with(kDeleted) && !fs::exists(path, error)) {
    path.resize(path.size() - kDeleted.size());
  }
  return path;
}

bool IsProgram(const std::string& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored) && ::access(path.c_str(), X_OK) == 0;
}

}  // namespace

DesktopPlaces DesktopPlaces::OfThisSession() {
  return {Folders(QStandardPaths::GenericDataLocation),
          Folders(QStandardPaths::GenericConfigLocation), ToStrings(qgetenv("PATH").split(':')),
          ToStrings(qgetenv("XDG_CURRENT_DESKTOP").toLower().split(':')), RunningProgram()};
}

std::optional<std::string> DesktopPlaces::FindProgram(std::string_view name) const {
  std::string path(name);
  if (path.find('/') != std::string::npos) {
    return IsProgram(path) ? std::optional(path) : std::nullopt;
  }
  for (const std::string& folder : programFolders) {
    path = std::string(folder).append("/").append(name);
    if (IsProgram(path)) return path;
  }
  return std::nullopt;
}

}  // namespace tagsmith
