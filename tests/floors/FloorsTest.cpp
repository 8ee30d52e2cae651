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

std::vector<Include> AllIncludes() {
  static const std::regex kPattern(R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re");
  std::vector<Include> includes;
  for (const auto& entry : fs::recursive_directory_iterator(kSource)) {
    const fs::path& path = entry.path();
    if (path.extension() != ".h" && path.extension() != ".cpp") continue;
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

TEST(Floors, AnIncludeGoesDownOnly) {
  for (const Include& include : AllIncludes()) {
    if (!include.isOurs) continue;  // Named from the root of the sources, else it has no floor.
    const std::string from = FloorOf(include.file);
    const std::string to = FloorOf(include.name);
    ASSERT_TRUE(kMaySee.contains(from)) << from << " is no floor of the house";
    EXPECT_TRUE(from == to || kMaySee.at(from).contains(to))
        << include.file << " includes " << include.name;
  }
}

TEST(Floors, NoToolkitStandsInTheLogic) {
  const std::set<std::string> onTheDesktop = {"app", "services/host", "services/desktop"};
  const std::regex toolkit(R"(^(Q[A-Za-z].*|Qt.*/.*|Qsci/.*|hunspell/.*|.*\.h|.*\.hxx)$)");
  for (const Include& include : AllIncludes()) {
    if (include.isOurs || onTheDesktop.contains(FloorOf(include.file))) continue;
    EXPECT_FALSE(std::regex_match(include.name, toolkit))
        << include.file << " includes <" << include.name << ">";
  }
}

TEST(Floors, NoHeaderIncludesItselfInTheEnd) {
  std::map<std::string, std::vector<std::string>> below;
  for (const Include& include : AllIncludes()) {
    if (include.isOurs) below[include.file.string()].push_back(include.name);
  }
  // Files that include none of those left go, until only circles and what leads to them are left.
  const auto isAtTheBottom = [&below](const auto& file) {
    return std::none_of(file.second.begin(), file.second.end(),
                        [&below](const std::string& next) { return below.contains(next); });
  };
  while (std::erase_if(below, isAtTheBottom) > 0) {
  }
  for (const auto& [file, includes] : below) {
    ADD_FAILURE() << "a circle of includes goes through or below " << file;
  }
}

}  // namespace
}  // namespace tagsmith
