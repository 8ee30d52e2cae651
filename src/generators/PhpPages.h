#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "generators/GeneratedFile.h"

namespace tagsmith::generators {

/// A table of an ODBC database and the pages that are wanted for it. All texts are UTF-8 and go
/// into the pages as they are.
struct PhpSite {
  std::string dsn;
  std::string user;
  std::string password;
  std::string table;
  /// Name, type, name, type ...: a name counts when a further token follows it.
  std::vector<std::string> fieldArray;
  bool hasAdd = false;
  bool hasUpdate = false;
  bool hasDelete = false;
  bool hasListAll = false;
  bool hasMenu = false;  ///< The other pages link to the menu.
};

/// The tokens between the bars of a field list, nothing trimmed; none for an empty text.
std::vector<std::string> SplitFields(std::string_view fields);

// Each page type gives its files in the order of writing. The pages are those of PHP 4: short open
// tags, and form values as global variables of the fields' names. The table's key is its column ID.

std::vector<GeneratedFile> AddPages(const PhpSite& site);
std::vector<GeneratedFile> UpdatePages(const PhpSite& site);
std::vector<GeneratedFile> DeletePages(const PhpSite& site);
std::vector<GeneratedFile> ListAllPages(const PhpSite& site);
/// The menu links to the page types that `site` has.
std::vector<GeneratedFile> MenuPages(const PhpSite& site);

}  // namespace tagsmith::generators
