#include "services/host/DriveMap.h"

#include <mntent.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

#include "services/host/StandIns.h"

namespace tagsmith {
namespace {

constexpr std::array<StandIn, 2> kNameStandIns = {{{'\\', 0xF05C}, {':', 0xF03A}}};
constexpr std::array<std::string_view, 3> kVolumeFolders = {"/media", "/run/media", "/mnt"};
constexpr char kRootLetter = 'c';

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

char LowerLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

bool IsVolume(std::string_view mountPoint) {
  return std::ranges::any_of(kVolumeFolders, [mountPoint](std::string_view folder) {
    return mountPoint.starts_with(folder) &&
           (mountPoint.size() == folder.size() || mountPoint[folder.size()] == '/');
  });
}

std::string LastComponent(std::string_view hostPath) {
  return std::string(hostPath.substr(hostPath.rfind('/') + 1));
}

struct CloseMounts {
  void operator()(std::FILE* mounts) const { ::endmntent(mounts); }
};

}  // namespace

std::vector<std::string> MountPoints() {
  std::vector<std::string> mountPoints;
  const std::unique_ptr<std::FILE, CloseMounts> mounts(::setmntent("/proc/self/mounts", "re"));
  if (!mounts) return mountPoints;
  std::array<char, 16384> buffer{};
  mntent entry{};
  while (::getmntent_r(mounts.get(), &entry, buffer.data(), buffer.size()) != nullptr) {
    // What an automounter only offers is no volume before it is opened.
    if (std::string_view(entry.mnt_type) != "autofs") mountPoints.emplace_back(entry.mnt_dir);
  }
  return mountPoints;
}

void DriveMap::Update(const std::vector<std::string>& mountPoints) {
  std::erase_if(volumes_, [&mountPoints](const Volume& volume) {
    return std::ranges::find(mountPoints, volume.mountPoint) == mountPoints.end();
  });
  for (const std::string& mountPoint : mountPoints) {
    if (IsVolume(mountPoint) && FindMountPoint(mountPoint) == nullptr) Add(mountPoint);
  }
  std::ranges::sort(volumes_, {}, &Volume::letter);
}

const DriveMap::Volume* DriveMap::FindMountPoint(std::string_view mountPoint) const {
  const auto found = std::ranges::find(volumes_, mountPoint, &Volume::mountPoint);
  return found == volumes_.end() ? nullptr : &*found;
}

const DriveMap::Volume* DriveMap::FindLetter(char letter) const {
  const auto found = std::ranges::find(volumes_, letter, &Volume::letter);
  return found == volumes_.end() ? nullptr : &*found;
}

// Gives the volume the first free letter. Past "z:" volumes are reached through "c:" alone.
void DriveMap::Add(const std::string& mountPoint) {
  for (char letter = kRootLetter + 1; letter <= 'z'; ++letter) {
    if (FindLetter(letter) == nullptr) {
      volumes_.push_back({letter, mountPoint});
      return;
    }
  }
}

std::vector<Drive> DriveMap::Drives() const {
  std::vector<Drive> drives = {{kRootLetter, "root", ToSystemPath("/")}};
  for (const Volume& volume : volumes_) {
    drives.push_back({volume.letter, ToSystemPath(LastComponent(volume.mountPoint)),
                      ToSystemPath(volume.mountPoint)});
  }
  return drives;
}

std::string DriveMap::ToSystemPath(std::string_view hostPath) {
  std::string path = ToStandIns(hostPath, kNameStandIns);
  std::ranges::replace(path, '/', '\\');
  if (hostPath.starts_with('/')) path.insert(0, {kRootLetter, ':'});
  return path;
}

bool DriveMap::IsFullPath(std::string_view path) {
  return path.size() >= 2 && IsLetter(path[0]) && path[1] == ':';
}

std::optional<std::string> DriveMap::ToHostPath(std::string_view systemPath) const {
  if (!IsFullPath(systemPath)) return std::nullopt;
  const char letter = LowerLetter(systemPath[0]);
  const Volume* volume = FindLetter(letter);
  if (volume == nullptr && letter != kRootLetter) return std::nullopt;

  std::string path(systemPath.substr(2));
  std::ranges::replace_if(path, IsSeparator, '/');
  if (!path.starts_with('/')) path.insert(0, 1, '/');
  path = FromStandIns(path, kNameStandIns);
  return volume == nullptr ? path : volume->mountPoint + path;
}

std::optional<std::string> DriveMap::ToHostName(std::string_view name) {
  const auto isForbidden = [](char c) { return IsSeparator(c) || c == '\0'; };
  const bool isName =
      !name.empty() && name != "." && name != ".." && std::ranges::none_of(name, isForbidden);
  return isName ? std::optional(FromStandIns(name, kNameStandIns)) : std::nullopt;
}

}  // namespace tagsmith
