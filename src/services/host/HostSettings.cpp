#include "services/host/HostSettings.h"

#include <QFile>
#include <QLockFile>
#include <QStandardPaths>
#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

#include "services/Error.h"
#include "services/host/FileReader.h"
#include "services/host/FileStatus.h"
#include "services/host/HostError.h"
#include "services/host/MakeFolder.h"
#include "services/host/RenameFile.h"
#include "services/host/SafeWriter.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostBytes = std::size_t{64} << 20U;

}  // namespace

HostSettings::HostSettings(std::string path) : path_(std::move(path)) {}

std::string HostSettings::DefaultPath() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return QFile::encodeName(folder + "/tagsmith/settings.json").toStdString();
}

std::string HostSettings::GetSetting(std::string_view application, std::string_view section,
                                     std::string_view key, std::string_view fallback) const {
  const SettingName name{std::string(application), std::string(section), std::string(key)};
  if (const auto found = unsaved_.find(name); found != unsaved_.end()) return found->second;
  Refresh();
  const auto found = stored_.find(name);
  return found == stored_.end() ? std::string(fallback) : found->second;
}

void HostSettings::SaveSetting(std::string_view application, std::string_view section,
                               std::string_view key, std::string_view value) {
  unsaved_.insert_or_assign({std::string(application), std::string(section), std::string(key)},
                            std::string(value));
  try {
    Store();
  } catch (const std::exception& error) {
    // The texts stay in `unsaved_`.
    trouble_ = error.what();
  }
}

std::string HostSettings::Trouble() const {
  return unsaved_.empty() ? std::string() : path_ + ": " + trouble_;
}

HostSettings::Stamp HostSettings::StampNow() const {
  FileStatus status{};
  if (::stat(path_.c_str(), &status) != 0) return {};
  return {status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
          status.st_mtim.tv_nsec};
}

void HostSettings::Refresh() const {
  const Stamp now = StampNow();
  if (state_ != State::kUnread && now == stamp_) return;
  // Taken before the reading, so that a change in between shows the next time.
  stamp_ = now;
  Read();
}

void HostSettings::Read() const {
  try {
    ParsedSettings parsed;
    if (const auto bytes = ReadRegularFile({path_, {}}, kMostBytes)) {
      parsed = ParseSettings(*bytes);
    } else {
      parsed.damaged = true;
    }
    stored_ = std::move(parsed.settings);
    state_ = parsed.damaged ? State::kDamaged : State::kGood;
  } catch (const Error& error) {
    const ErrorCode code = error.Code();
    const bool absent = code == ErrorCode::kFileNotFound || code == ErrorCode::kPathNotFound;
    const bool damaged =
        code == ErrorCode::kNotARegularFile || code == ErrorCode::kPermissionDenied;
    // Other failures pass; what was known before still holds.
    trouble_ = error.what();
    state_ = absent ? State::kGood : damaged ? State::kDamaged : State::kOutOfReach;
    if (absent || damaged) stored_.clear();
  }
}

void HostSettings::Store() {
  Refresh();
  // Both tables are in order, so this asks whether the file holds all of it already.
  if (std::includes(stored_.begin(), stored_.end(), unsaved_.begin(), unsaved_.end())) {
    return unsaved_.clear();
  }

  constexpr int kPatienceInMilliseconds = 1000;
  MakeFolder(fs::path(path_).parent_path());
  QLockFile lock(QFile::decodeName((path_ + ".lock").c_str()));
  // Without the lock the text still goes in: another program may hang on to it.
  static_cast<void>(lock.tryLock(kPatienceInMilliseconds));
  StoreLocked();
}

void HostSettings::StoreLocked() {
  Read();
  if (state_ == State::kOutOfReach) return;
  if (state_ == State::kDamaged) {
    unsaved_.insert(stored_.begin(), stored_.end());
    SetAsideDamagedFile();
  }
  SettingsTable merged = stored_;
  for (const auto& [name, text] : unsaved_) merged.insert_or_assign(name, text);
  WriteSafely({path_, {}}, FormatSettings(merged), Durability::kWritten);
  unsaved_.clear();
  state_ = State::kUnread;
}

void HostSettings::SetAsideDamagedFile() const {
  const std::string name = path_ + ".damaged";
  std::string free = name;
  for (int i = 2; FindEntry(free); ++i) free = name + '.' + std::to_string(i);
  RenameFile(path_, free);
}

}  // namespace tagsmith
