// The floors of the house: an include goes down only, and no toolkit stands in the logic.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = TAGSMITH_SOURCE_FOLDER;

struct Include {
  fs::path file;  // From src/.
  std::string name;
  bool isOurs = false;
};

std::vector<fs::path> SourceFiles() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
    const std::string extension = entry.path().extension().string();
    if (extension == ".h" || extension == ".cpp") files.push_back(entry.path());
  }
  return files;
}

std::vector<Include> AllIncludes() {
  static const std::regex kPattern(R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re");
  std::vector<Include> includes;
  for (const fs::path& path : SourceFiles()) {
    std::ifstream file(path);
    std::smatch match;
    for (std::string line; std::getline(file, line);) {
      if (!std::regex_search(line, match, kPattern)) continue;
      includes.push_back({fs::relative(path, kSource), match[2], match[1] == "\""});
    }
  }
  return includes;
}

// The floor that a file stands on: its folder, the one below services/ included.
std::string FloorOf(const fs::path& file) {
  auto part = file.begin();
  std::string first = part->string();
  if (first != "services") return first;
  const std::string second = (++part)->string();
  return std::next(part) == file.end() ? first : first + "/" + second;
}

// What each floor may see besides itself.
const std::map<std::string, std::set<std::string>> kMaySee = {
    {"app",
     {"toolbars", "dialogs", "generators", "sitetools", "integration", "core", "services",
      "services/rtf", "services/host", "services/desktop"}},
    {"toolbars", {"core", "services"}},
    {"dialogs", {"core", "services"}},
    {"generators", {"core", "services"}},
    {"sitetools", {"core", "services"}},
    {"integration", {"core", "services"}},
    {"core", {"services"}},
    {"services", {}},
    {"services/rtf", {"services"}},
    {"services/host", {"services", "services/rtf"}},
    {"services/desktop", {"services"}},
};

bool IsOutsideTheStandardLibrary(const std::string& header) {
  static const std::regex kToolkit(R"(^(Q[A-Za-z].*|Qt.*/.*|Qsci/.*|hunspell/.*|.*\.h|.*\.hxx)$)");
  return std::regex_match(header, kToolkit);
}

TEST(Floors, AnIncludeGoesDownOnly) {
  for (const Include& include : AllIncludes()) {
    if (!include.isOurs) continue;
    const std::string from = FloorOf(include.file);
    const std::string to = FloorOf(include.name);
    ASSERT_TRUE(kMaySee.contains(from)) << from << " is no floor of the house";
    EXPECT_TRUE(from == to || kMaySee.at(from).contains(to))
        << include.file << " includes " << include.name;
    EXPECT_TRUE(fs::exists(kSource / include.name))
        << include.file << " names " << include.name << " other than from the root of the sources";
  }
}

TEST(Floors, NoToolkitStandsInTheLogic) {
  static const std::set<std::string> kOnTheDesktop = {"app", "services/host", "services/desktop"};
  for (const Include& include : AllIncludes()) {
    if (include.isOurs || kOnTheDesktop.contains(FloorOf(include.file))) continue;
    EXPECT_FALSE(IsOutsideTheStandardLibrary(include.name))
        << include.file << " includes <" << include.name << ">";
  }
}

TEST(Floors, NoHeaderIncludesItselfInTheEnd) {
  std::map<std::string, std::vector<std::string>> below;
  for (const Include& include : AllIncludes()) {
    if (include.isOurs) below[include.file.string()].push_back(include.name);
  }
  enum class State { kNew, kOpen, kDone };
  std::map<std::string, State> states;
  const auto visit = [&](const auto& self, const std::string& file) -> bool {
    State& state = states[file];
    if (state != State::kNew) return state == State::kDone;
    state = State::kOpen;
    const bool fine = std::all_of(below[file].begin(), below[file].end(),
                                  [&](const std::string& next) { return self(self, next); });
    states[file] = State::kDone;
    return fine;
  };
  const std::map<std::string, std::vector<std::string>> files = below;
  for (const auto& [file, includes] : files) {
    EXPECT_TRUE(visit(visit, file)) << "a circle of includes goes through " << file;
  }
}

}  // namespace
}  // namespace tagsmith
