#pragma once

#include <memory>
#include <string>

#include "services/Dictionary.h"

namespace tagsmith {

/// Hunspell with the dictionary of the desktop's language (American English where the desktop names
/// none), and the user's own words in a file.
class HunspellDictionary final : public Dictionary {
 public:
  /// `wordsFile` is the host path of the user's own words: UTF-8, one a line.
  explicit HunspellDictionary(std::string wordsFile = DefaultWordsFile());
  ~HunspellDictionary() override;
  HunspellDictionary(const HunspellDictionary&) = delete;
  HunspellDictionary& operator=(const HunspellDictionary&) = delete;

  /// "words.txt" beside the settings.
  static std::string DefaultWordsFile();

  bool Knows(std::string_view word) override;
  std::vector<std::string> Suggest(std::string_view word) override;
  void Learn(std::string_view word) override;

 private:
  class Loaded;

  std::string wordsFile_;
  std::unique_ptr<Loaded> loaded_;
};

}  // namespace tagsmith
