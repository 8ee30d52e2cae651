#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/Dictionary.h"
#include "services/Error.h"
#include "services/host/DictionaryFiles.h"
#include "services/host/OwnWords.h"

namespace tagsmith {

/// Hunspell with the dictionary of the desktop's language (American English where it has none), and
/// the user's own words in a file. A typographic apostrophe (U+2019) is as good as the straight
/// one. Words of more than 60 letters get no suggestions: those would take seconds.
class HunspellDictionary final : public Dictionary {
 public:
  /// `wordsFile` is the host path of the user's own words: UTF-8, one a line.
  explicit HunspellDictionary(std::string wordsFile = DefaultWordsFile(),
                              DictionarySearch search = DictionarySearch::OfDesktop());
  ~HunspellDictionary() override;
  HunspellDictionary(const HunspellDictionary&) = delete;
  HunspellDictionary& operator=(const HunspellDictionary&) = delete;

  /// "words.txt" beside the settings.
  static std::string DefaultWordsFile();

  std::string Name() override;
  bool Knows(std::string_view word) override;
  std::vector<std::string> Suggest(std::string_view word) override;
  void Learn(std::string_view word) override;
  void RaiseOwnWordsError() override;

 private:
  class Loaded;

  Loaded& Load();
  void AddOwnWords(Loaded& loaded);

  OwnWords ownWords_;
  std::optional<Error> ownWordsError_;
  DictionarySearch search_;
  std::unique_ptr<Loaded> loaded_;
};

}  // namespace tagsmith
