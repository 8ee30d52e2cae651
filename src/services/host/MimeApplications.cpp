#include "services/host/MimeApplications.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <functional>
#include <set>
#include <system_error>

#include "services/Error.h"
#include "services/host/DesktopEntries.h"
#include "services/host/FileReader.h"
#include "services/host/KeyFile.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostBytes = std::size_t{16} << 20U;
constexpr std::string_view kEntry = "Desktop Entry";
constexpr std::string_view kDefaults = "Default Applications";

std::string ReadIfPossible(const std::string& path) {
  try {
    return ReadRegularFile({path, {}}, kMostBytes).value_or(std::string());
  } catch (const Error&) {
    return {};
  }
}

// A hyphen of an id may stand for a slash.
std::optional<std::string> FindEntryIn(const std::string& folder, const std::string& id) {
  std::error_code ignored;
  const std::string path = folder + '/' + id;
  if (fs::is_regular_file(path, ignored)) return path;
  for (std::size_t hyphen = id.find('-'); hyphen != std::string::npos;
       hyphen = id.find('-', hyphen + 1)) {
    const std::string inner = folder + '/' + id.substr(0, hyphen);
    if (hyphen == 0 || !fs::is_directory(inner, ignored)) continue;
    if (auto found = FindEntryIn(inner, id.substr(hyphen + 1))) return found;
  }
  return std::nullopt;
}

std::vector<std::string> WithApplications(std::vector<std::string> folders) {
  for (std::string& folder : folders) folder += "/applications";
  return folders;
}

}  // namespace

// The texts of the files, the most important first.
std::vector<std::string> MimeApplications::DefaultLists() const {
  Ids prefixes;
  for (const std::string& desktop : places_.desktops) prefixes.push_back(desktop + '-');
  prefixes.emplace_back();
  Ids folders = places_.configFolders;
  const Ids dataFolders = WithApplications(places_.dataFolders);
  folders.insert(folders.end(), dataFolders.begin(), dataFolders.end());

  std::vector<std::string> lists;
  for (const std::string& folder : folders) {
    for (const std::string& prefix : prefixes) {
      const std::string path = std::string(folder).append("/").append(prefix);
      lists.push_back(ReadIfPossible(path + "mimeapps.list"));
    }
  }
  return lists;
}

std::optional<std::string> MimeApplications::ChosenDefault(const std::string& mimeType) const {
  for (const std::string& list : DefaultLists()) {
    for (std::string& id : KeyFileList(KeyFileValue(list, kDefaults, mimeType))) {
      if (IsInstalled(id)) return std::move(id);
    }
  }
  return std::nullopt;
}

bool MimeApplications::IsPlainlyChosen(const std::string& mimeType) const {
  return std::ranges::any_of(DefaultLists(), [&](const std::string& list) {
    const auto values = KeyFileValues(list, kDefaults, mimeType);
    const Ids ids = KeyFileList(values.empty() ? std::string_view() : values.front());
    return !ids.empty() && IsInstalled(ids.front());
  });
}

std::vector<std::string> MimeApplications::Openers(const std::string& mimeType) const {
  Ids openers;
  std::set<std::string> removed;
  const auto add = [&](const std::string& id) {
    const bool isThere = std::find(openers.begin(), openers.end(), id) != openers.end();
    if (!isThere && !removed.contains(id) && IsInstalled(id)) openers.push_back(id);
  };
  const auto addFromList = [&](const std::string& folder) {
    const std::string list = ReadIfPossible(folder + "/mimeapps.list");
    std::ranges::for_each(KeyFileList(KeyFileValue(list, "Added Associations", mimeType)), add);
    removed.merge([&] {
      const Ids ids = KeyFileList(KeyFileValue(list, "Removed Associations", mimeType));
      return std::set<std::string>(ids.begin(), ids.end());
    }());
  };

  for (const std::string& folder : WithApplications(places_.dataFolders)) {
    const std::string list = IsOnKde() ? std::string() : ReadIfPossible(folder + "/defaults.list");
    std::ranges::for_each(KeyFileList(KeyFileValue(list, kDefaults, mimeType)), add);
  }
  std::ranges::for_each(places_.configFolders, addFromList);
  const auto chosenByUser = static_cast<std::ptrdiff_t>(openers.size());
  for (const std::string& folder : WithApplications(places_.dataFolders)) {
    addFromList(folder);
    const std::string cache = ReadIfPossible(folder + "/mimeinfo.cache");
    for (const std::string& id : KeyFileList(KeyFileValue(cache, "MIME Cache", mimeType))) {
      // An entry of the same id in a more important folder stands instead of this one.
      if (FindEntry(id).value_or("").starts_with(folder + '/')) add(id);
    }
  }
  SortByPreference({openers.begin() + chosenByUser, openers.end()});
  return openers;
}

bool MimeApplications::IsOnKde() const {
  return std::ranges::find(places_.desktops, "kde") != places_.desktops.end();
}

// KDE goes by the preference that entries state for themselves before it goes by their order.
void MimeApplications::SortByPreference(std::span<std::string> ids) const {
  if (!IsOnKde()) return;
  std::ranges::stable_sort(ids, std::ranges::greater(), [this](const std::string& id) {
    const std::string entry = ReadIfPossible(FindEntry(id).value_or(""));
    const std::string_view value = KeyFileValue(entry, kEntry, "InitialPreference");
    int preference = 1;
    std::from_chars(value.data(), value.data() + value.size(), preference);
    return preference;
  });
}

std::optional<std::string> MimeApplications::FindEntry(const std::string& id) const {
  for (const std::string& folder : WithApplications(places_.dataFolders)) {
    if (auto found = FindEntryIn(folder, id)) return found;
  }
  return std::nullopt;
}

bool MimeApplications::IsInstalled(const std::string& id) const {
  const auto path = FindEntry(id);
  if (!path) return false;
  const std::string entry = ReadIfPossible(*path);
  if (entry.empty() || KeyFileValue(entry, kEntry, "Hidden") == "true") return false;
  const std::string tried = UnescapeKeyFileText(KeyFileValue(entry, kEntry, "TryExec"));
  const std::string started = ProgramOfExecValue(KeyFileValue(entry, kEntry, "Exec"));
  const auto isThere = [this](const std::string& program) {
    return program.empty() || places_.FindProgram(program).has_value();
  };
  return isThere(tried) && isThere(started);
}

}  // namespace tagsmith
