#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tagsmith {

/// The words that are spelt right: those of the desktop's language and the user's own. Words are
/// UTF-8 without markup. The words are read at the first call; each call throws `Error` when there
/// is no dictionary, with a text that says which one is missing.
class Dictionary {
 public:
  virtual ~Dictionary() = default;

  /// The name of the dictionary in use, as a locale is named: "en_US".
  virtual std::string Name() = 0;
  virtual bool Knows(std::string_view word) = 0;
  /// Words that may have been meant, the likeliest first. Slow: some 35 ms.
  virtual std::vector<std::string> Suggest(std::string_view word) = 0;
  /// Takes a word into the user's own, for this run and those to come. Throws `Error` when it
  /// cannot be kept; it counts as known in this run all the same.
  virtual void Learn(std::string_view word) = 0;
  /// Throws `Error` when the user's own words could not be read, with a text that names their file.
  /// Only once, for the user to be told: words are looked up all the same. Reads nothing itself.
  virtual void RaiseOwnWordsError() = 0;
};

}  // namespace tagsmith
