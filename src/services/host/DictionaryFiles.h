#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tagsmith {

/// The text of the environment variable `name`, empty when it is not set.
using Environment = std::function<std::string(const char* name)>;

/// Which dictionary is looked for, and where.
struct DictionarySearch {
  /// Locale names without their encoding ("de_DE", "ca_ES@valencia"), the first is wanted most.
  std::vector<std::string> languages;
  std::vector<std::string> folders;  ///< Host paths; what is in the first counts most.

  /// What `environment` asks for: the desktop's language, then American English, in the folders
  /// where dictionaries are kept.
  static DictionarySearch By(const Environment& environment);
  /// The same by the environment of this process.
  static DictionarySearch OfDesktop();
};

/// The two files of a dictionary, with host paths.
struct DictionaryFiles {
  std::string name;  ///< What both are called after: "en_US".
  std::string affixes;
  std::string words;
};

/// The dictionary of the first language that has one. A language without one of its own country
/// takes that of another: the one called after the language (de_DE for de_LU), else the first by
/// name. Files that cannot be read, and lists that are plainly damaged, do not count.
///
/// Throws kFileNotFound with a text that names the languages and the folders that are there.
DictionaryFiles FindDictionary(const DictionarySearch& search);

}  // namespace tagsmith
