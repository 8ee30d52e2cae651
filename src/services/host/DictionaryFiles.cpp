#include "services/host/DictionaryFiles.h"

#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>
#include <system_error>
#include <tuple>

#include "services/Error.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kUsualFolder = "/usr/share/hunspell";

bool IsLetterOrDigit(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}
bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

// The parts of a locale's or a dictionary's name: "ca_ES@valencia" as "ca_ES-valencia".
struct LanguageName {
  std::string language;
  std::string country;  // "ES", "419"
  std::string variant;  // All the rest: "valencia", "Latn", "frami".
};

bool IsCountry(std::string_view part) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  return (part.size() == 2 && std::ranges::all_of(part, IsUpper)) ||
         (part.size() == 3 && std::ranges::all_of(part, isDigit));
}

// Dictionaries name the script (ISO 15924) that a locale tells by a modifier.
std::string VariantOf(const std::string& part) {
  if (part == "latin") return "Latn";
  if (part == "cyrillic") return "Cyrl";
  if (part == "devanagari") return "Deva";
  return part;
}

LanguageName ParseLanguage(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '-' || c == '@'; }, '_');
  LanguageName name;
  for (const std::string& part : Split(text, '_')) {
    if (name.language.empty()) {
      name.language = part;
    } else if (name.country.empty() && IsCountry(part)) {
      name.country = part;
    } else {
      name.variant += (name.variant.empty() ? "" : "_") + VariantOf(part);
    }
  }
  return name;
}

// Empty where the desktop names no language, or one that is no part of a file name.
std::string DesktopLanguage(const Environment& environment) {
  for (const char* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    std::string locale = environment(variable);
    if (locale.empty()) continue;
    if (const std::size_t dot = locale.find('.'); dot != std::string::npos) {
      locale.erase(dot, std::min(locale.find('@', dot), locale.size()) - dot);
    }
    const auto isNamePart = [](char c) { return IsLetterOrDigit(c) || c == '_' || c == '@'; };
    const std::string language = ParseLanguage(locale).language;
    const bool isNone = language == "C" || language == "POSIX" || language.empty();
    return isNone || !std::ranges::all_of(locale, isNamePart) ? std::string() : locale;
  }
  return {};
}

// The data folders of the XDG Base Directory Specification, the user's own first. Relative paths
// do not count there.
std::vector<std::string> DataFolders(const Environment& environment) {
  std::string own = environment("XDG_DATA_HOME");
  if (own.empty()) own = environment("HOME") + "/.local/share";
  std::string others = environment("XDG_DATA_DIRS");
  if (others.empty()) others = "/usr/local/share:/usr/share";
  std::vector<std::string> folders = Split(others, ':');
  folders.insert(folders.begin(), own);
  std::erase_if(folders, [](const std::string& folder) { return !folder.starts_with('/'); });
  return folders;
}

bool IsThere(const std::string& folder) {
  std::error_code ignored;
  return fs::is_directory(folder, ignored);
}

bool IsReadableFile(const std::string& path) {
  std::error_code ignored;
  return fs::is_regular_file(path, ignored) && ::access(path.c_str(), R_OK) == 0;
}

// A word list begins with the number of its words. One that claims more than it has bytes is
// damaged, and memory for them all would be taken at once.
bool IsWordList(const std::string& path) {
  constexpr std::size_t kEnough = 64;
  std::string start(kEnough, '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(start.data(), static_cast<std::streamsize>(kEnough));
  start.resize(static_cast<std::size_t>(file.gcount()));
  if (start.starts_with(kByteOrderMark)) start.erase(0, kByteOrderMark.size());
  start.erase(0, start.find_first_not_of(" \t"));

  std::uint64_t words = 0;
  const auto result = std::from_chars(start.data(), start.data() + start.size(), words);
  std::error_code error;
  const std::uint64_t size = fs::file_size(path, error);
  return result.ec == std::errc() && !error && words > 0 && words <= size;
}

// Hunspell reads past its memory when the letters that it tries in suggestions are not in the
// encoding that the file names.
bool IsAffixFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  bool isUtf8 = false;
  bool areLettersSound = true;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    if (line.starts_with("SET")) isUtf8 = line.find("UTF-8") != std::string::npos;
    if (!line.starts_with("TRY") && !line.starts_with("KEY")) continue;
    areLettersSound = areLettersSound && IsValidUtf8(line);
  }
  return areLettersSound || !isUtf8;
}

bool IsUsable(const DictionaryFiles& files) {
  return IsReadableFile(files.affixes) && IsReadableFile(files.words) &&
         IsAffixFile(files.affixes) && IsWordList(files.words);
}

bool IsCalledAfter(const std::string& country, const std::string& language) {
  return std::ranges::equal(country, language, [](char upper, char lower) {
    return IsUpper(upper) && upper - 'A' == lower - 'a';
  });
}

// How far a dictionary is from what is wanted: by country, then by variant. Nothing when it is of
// another language, or holds the words of one trade only ("en_med").
using Distance = std::pair<int, int>;
std::optional<Distance> DistanceOf(const LanguageName& name, const LanguageName& wanted) {
  const bool isVariant = name.variant == wanted.variant;
  const bool isOfPart = name.country.empty() && !name.variant.empty() && !isVariant;
  if (name.language != wanted.language || isOfPart) return std::nullopt;
  const int variant = isVariant ? 0 : name.variant.empty() ? 1 : 2;
  if (name.country == wanted.country) return Distance{0, variant};
  if (name.country.empty()) return Distance{1, variant};
  return Distance{IsCalledAfter(name.country, name.language) ? 2 : 3, variant};
}

struct Candidate {
  Distance distance;
  std::size_t folder = 0;  // Its place in the search.
  DictionaryFiles files;

  bool operator<(const Candidate& other) const {
    return std::tie(distance, files.name, folder) <
           std::tie(other.distance, other.files.name, other.folder);
  }
};

std::vector<Candidate> CandidatesFor(const std::string& language,
                                     const std::vector<std::string>& folders) {
  const LanguageName wanted = ParseLanguage(language);
  std::vector<Candidate> candidates;
  for (std::size_t i = 0; i < folders.size(); ++i) {
    std::error_code error;
    fs::directory_iterator entry(folders[i], error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
      const fs::path& path = entry->path();
      if (path.extension() != ".aff") continue;
      const std::string name = path.stem();
      const std::optional<Distance> distance = DistanceOf(ParseLanguage(name), wanted);
      if (!distance) continue;
      candidates.push_back({*distance, i, {name, path, fs::path(path).replace_extension(".dic")}});
    }
  }
  std::ranges::sort(candidates, std::less<>());
  return candidates;
}

Error MissingDictionary(const DictionarySearch& search) {
  std::string languages;
  for (const std::string& language : search.languages) {
    languages += (languages.empty() ? "\"" : " or \"") + language + '"';
  }
  std::string folders;
  for (const std::string& folder : search.folders) {
    if (IsThere(folder)) folders += (folders.empty() ? "" : ", ") + folder;
  }
  if (folders.empty()) folders = search.folders.empty() ? kUsualFolder : search.folders.back();
  return {ErrorCode::kFileNotFound,
          "There is no dictionary for " + languages + " in " + folders + '.'};
}

}  // namespace

DictionarySearch DictionarySearch::By(const Environment& environment) {
  DictionarySearch search;
  search.languages = {DesktopLanguage(environment), "en_US"};
  if (search.languages.front().empty() || search.languages.front() == "en_US") {
    search.languages.erase(search.languages.begin());
  }

  std::vector<std::string> folders = Split(environment("DICPATH"), ':');
  for (const std::string& folder : DataFolders(environment)) {
    folders.push_back((fs::path(folder) / "hunspell").string());
  }
  folders.insert(folders.end(),
                 {"/usr/share/myspell/dicts", "/usr/share/myspell", std::string(kUsualFolder)});
  for (std::string& folder : folders) {
    if (folder.empty() || std::ranges::count(search.folders, folder) > 0) continue;
    search.folders.push_back(std::move(folder));
  }
  return search;
}

DictionarySearch DictionarySearch::OfDesktop() {
  return By([](const char* name) {
    const char* const text = std::getenv(name);
    return std::string(text == nullptr ? "" : text);
  });
}

DictionaryFiles FindDictionary(const DictionarySearch& search) {
  for (const std::string& language : search.languages) {
    for (const Candidate& candidate : CandidatesFor(language, search.folders)) {
      if (IsUsable(candidate.files)) return candidate.files;
    }
  }
  throw MissingDictionary(search);
}

}  // namespace tagsmith
