#include "services/host/DesktopRegistry.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>

#include "services/Error.h"
#include "services/Utf8.h"
#include "services/host/DesktopEntries.h"
#include "services/host/DriveMap.h"
#include "services/host/FileReader.h"
#include "services/host/FileStatus.h"
#include "services/host/HostError.h"
#include "services/host/KeyFile.h"
#include "services/host/MakeFolder.h"
#include "services/host/MimeApplications.h"
#include "services/host/SafeWriter.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;
using Ids = std::vector<std::string>;

constexpr const char* kId = "tagsmith-edit.desktop";
constexpr std::size_t kMostBytes = std::size_t{16} << 20U;

// Runs `action`, whose errors get the path they are about.
void NamingPath(const std::string& path, const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    throw ErrorAbout(path, error);
  }
}

// The text of a file that is going to be changed; empty when there is none.
std::string ReadIfThere(const std::string& path) {
  std::string text;
  NamingPath(path, [&] {
    if (!FindStatus(path)) return;
    auto bytes = ReadRegularFile({path, {}}, kMostBytes);
    if (!bytes) throw SystemError(EFBIG);
    text = *std::move(bytes);
  });
  return text;
}

void Store(const std::string& path, const std::string& text) {
  MakeFolder(fs::path(path).parent_path());
  if (!text.empty() && ReadIfThere(path) == text) return;
  NamingPath(path, [&] { WriteSafely({path, {}}, text, Durability::kWritten); });
}

void MakeExecutable(const std::string& path) {
  NamingPath(path, [&] {
    std::error_code error;
    constexpr auto kAll = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    if ((fs::status(path, error).permissions() & kAll) == kAll) return;
    fs::permissions(path, kAll, fs::perm_options::add, error);
    if (error) throw SystemError(error.value());
  });
}

bool Contains(const Ids& ids, std::string_view id) {
  return std::ranges::find(ids, id) != ids.end();
}

}  // namespace

DesktopRegistry::DesktopRegistry(DesktopPlaces places) : places_(std::move(places)) {}

void DesktopRegistry::OfferFor(std::string_view mimeType, std::string_view entryName) {
  const ProgramOffer offer{places_.program, Icon(), std::string(entryName), std::string(mimeType)};
  if (!IsValidUtf8(offer.program)) {
    throw Error(ErrorCode::kOther, offer.program + ": " + SystemError(EILSEQ).what());
  }
  const std::string& home = places_.dataFolders.front();
  const std::string menu = home + "/kio/servicemenus/" + kId;
  KeepDefault(offer.mimeType);
  Store(menu, ServiceMenu(offer));
  MakeExecutable(menu);  // KDE asks for it.
  Store(home + "/applications/" + kId, ApplicationEntry(offer));
  AddToCache(offer.mimeType);
}

// Also takes back that the user has removed the program from the type. Of several lines each keeps
// its first application where that is installed: programs do not agree on which line counts.
void DesktopRegistry::KeepDefault(const std::string& mimeType) const {
  constexpr std::string_view kDefaults = "Default Applications";
  constexpr std::string_view kRemoved = "Removed Associations";
  const std::string path = places_.configFolders.front() + "/mimeapps.list";
  const std::string before = ReadIfThere(path);
  std::string text =
      WithKeyFileList(before, kRemoved, mimeType, [](Ids& ids) { std::erase(ids, kId); });
  const MimeApplications applications(places_);
  const auto chosen = applications.ChosenDefault(mimeType);
  if (!chosen || !applications.IsPlainlyChosen(mimeType)) {
    const Ids defaults = chosen ? Ids{*chosen} : OtherOpeners(mimeType);
    text = WithKeyFileList(text, kDefaults, mimeType, [&](Ids& ids) {
      if (!ids.empty() && applications.IsInstalled(ids.front())) return;
      std::erase_if(ids, [&](const std::string& id) { return Contains(defaults, id); });
      ids.insert(ids.begin(), defaults.begin(), defaults.end());
    });
  }
  if (text != before) Store(path, text);
}

// Every text opens in what opens plain text, where nothing is registered for it: the Shared
// MIME-info Database specification, "Subclassing".
std::vector<std::string> DesktopRegistry::OtherOpeners(const std::string& mimeType) const {
  const MimeApplications applications(places_);
  std::vector<std::string> openers = applications.Openers(mimeType);
  std::erase(openers, kId);
  if (!openers.empty() || !mimeType.starts_with("text/")) return openers;
  openers = applications.Openers("text/plain");
  if (auto chosen = applications.ChosenDefault("text/plain")) {
    std::erase(openers, *chosen);
    openers.insert(openers.begin(), *std::move(chosen));
  }
  return openers;
}

// The cache of associations is brought up to date for this entry alone. Making it anew could change
// the defaults of other types, where entries lie in the folder that it does not know.
void DesktopRegistry::AddToCache(const std::string& mimeType) const {
  constexpr std::string_view kGroup = "MIME Cache";
  const std::string path = places_.dataFolders.front() + "/applications/mimeinfo.cache";
  const std::string text = ReadIfThere(path);
  Store(path, WithKeyFileList(text, kGroup, mimeType, [](Ids& ids) {
          if (!Contains(ids, kId)) ids.emplace_back(kId);
        }));
}

std::string DesktopRegistry::Icon() const {
  const fs::path icon = fs::path(places_.program).replace_filename("tagsmith.svg");
  std::error_code ignored;
  return fs::exists(icon, ignored) ? icon.string() : "tagsmith";
}

std::optional<std::string> DesktopRegistry::SystemInformationTool() const {
  for (const char* name : {"hardinfo2", "hardinfo", "kinfocenter"}) {
    if (const auto path = places_.FindProgram(name)) return DriveMap::ToSystemPath(*path);
  }
  const auto settings = places_.FindProgram("gnome-control-center");
  if (!settings) return std::nullopt;
  return DriveMap::ToSystemPath(*settings) + ' ' + GnomePanel();
}

// Each version has another name for it, and an entry of its own for the search.
std::string DesktopRegistry::GnomePanel() const {
  constexpr std::array<std::pair<const char*, const char*>, 3> kPanels = {
      {{"gnome-system-panel.desktop", "system"},
       {"gnome-about-panel.desktop", "about"},
       {"gnome-info-overview-panel.desktop", "info-overview"}}};
  const MimeApplications applications(places_);
  for (const auto& [id, panel] : kPanels) {
    if (applications.FindEntry(id)) return panel;
  }
  return "info";
}

}  // namespace tagsmith
