#include "services/host/HunspellDictionary.h"

#include <QString>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <hunspell/hunspell.hxx>
#include <new>
#include <optional>
#include <unordered_set>
#include <utility>

#include "services/host/DictionaryEncoding.h"
#include "services/host/HostError.h"
#include "services/host/HostSettings.h"

namespace tagsmith {
namespace {

constexpr std::string_view kApostrophe = "\u2019";

// Hunspell keeps the length of a word in one byte.
constexpr std::size_t kMostBytesOfWord = 255;

bool HasApostrophe(std::string_view word) {
  return word.find(kApostrophe) != std::string_view::npos;
}

std::string ReplaceAll(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  for (std::size_t end = 0; (end = text.find(what)) != std::string_view::npos;) {
    result.append(text.substr(0, end)).append(with);
    text.remove_prefix(end + what.size());
  }
  return result.append(text);
}

std::string WithStraightApostrophes(std::string_view word) {
  return ReplaceAll(word, kApostrophe, "'");
}

// The ways to write `word` that are right when the word is: a small one also begins a sentence, and
// any may stand in a heading.
std::vector<std::string> FormsOf(const std::string& word) {
  const QString text = QString::fromStdString(word);
  std::vector<std::string> forms = {word, text.toUpper().toStdString()};
  if (text == text.toLower()) {
    const qsizetype first = text.size() > 1 && text[0].isHighSurrogate() ? 2 : 1;
    forms.push_back((text.left(first).toUpper() + text.mid(first)).toStdString());
  }
  return forms;
}

// Hunspell takes a text that begins so for a command.
bool IsCommand(std::string_view word) { return word.starts_with("<?xml"); }

struct Hash : std::hash<std::string_view> {
  using is_transparent = void;
};

}  // namespace

// The words of one dictionary.
class HunspellDictionary::Loaded {
 public:
  explicit Loaded(const DictionaryFiles& files)
      : name_(files.name),
        hunspell_(files.affixes.c_str(), files.words.c_str()),
        encoding_(hunspell_.get_dict_encoding()) {}

  const std::string& Name() const { return name_; }

  bool Knows(std::string_view word) {
    if (!HasApostrophe(word)) return Has(word);
    return Has(WithStraightApostrophes(word)) || Has(word);
  }

  std::vector<std::string> Suggest(std::string_view word) {
    std::vector<std::string> words;
    if (!Encode(WithStraightApostrophes(word))) return words;
    for (const std::string& bytes : hunspell_.suggest(bytes_)) {
      const std::optional<std::string> text = encoding_.Decode(bytes);
      if (!text) continue;
      words.push_back(HasApostrophe(word) ? ReplaceAll(*text, "'", kApostrophe) : *text);
    }
    return words;
  }

  void Add(std::string_view word) {
    const std::string straight = WithStraightApostrophes(word);
    if (own_.contains(straight)) return;
    if (Encode(straight)) hunspell_.add(bytes_);
    for (std::string& form : FormsOf(straight)) own_.insert(std::move(form));
  }

 private:
  bool Has(std::string_view word) {
    if (!own_.empty() && own_.contains(word)) return true;
    return Encode(word) && hunspell_.spell(bytes_);
  }

  // Puts `word` into `bytes_`; false when it is nothing to ask Hunspell for.
  bool Encode(std::string_view word) {
    return word.size() <= kMostBytesOfWord && word.find('\0') == std::string_view::npos &&
           !IsCommand(word) && encoding_.Encode(word, bytes_);
  }

  std::string name_;
  Hunspell hunspell_;
  DictionaryEncoding encoding_;
  /// The user's own words in all their forms. Hunspell has them too, for its suggestions, but does
  /// not find each: its encoding may not hold one, or its rules stand in the way.
  std::unordered_set<std::string, Hash, std::equal_to<>> own_;
  std::string bytes_;  ///< Kept for its memory.
};

HunspellDictionary::HunspellDictionary(std::string wordsFile, DictionarySearch search)
    : ownWords_(std::move(wordsFile)), search_(std::move(search)) {}
HunspellDictionary::~HunspellDictionary() = default;

std::string HunspellDictionary::DefaultWordsFile() {
  return std::filesystem::path(HostSettings::DefaultPath()).replace_filename("words.txt");
}

HunspellDictionary::Loaded& HunspellDictionary::Load() {
  if (loaded_ != nullptr) return *loaded_;
  try {
    auto loaded = std::make_unique<Loaded>(FindDictionary(search_));
    AddOwnWords(*loaded);
    loaded_ = std::move(loaded);
  } catch (const std::bad_alloc&) {
    throw SystemError(ENOMEM);
  }
  return *loaded_;
}

// Without them the dictionary is of use all the same.
void HunspellDictionary::AddOwnWords(Loaded& loaded) {
  try {
    for (const std::string& word : ownWords_.Read()) loaded.Add(word);
  } catch (const Error& error) {
    ownWordsError_ = error;
  }
}

std::string HunspellDictionary::Name() { return Load().Name(); }

bool HunspellDictionary::Knows(std::string_view word) { return Load().Knows(word); }

std::vector<std::string> HunspellDictionary::Suggest(std::string_view word) {
  constexpr std::size_t kMostLetters = 60;
  Loaded& loaded = Load();
  const QString text = QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size()));
  if (text.isEmpty() || text.size() > static_cast<qsizetype>(kMostLetters)) return {};
  return loaded.Suggest(word);
}

void HunspellDictionary::Learn(std::string_view word) {
  Load().Add(word);
  ownWords_.Keep(word);
}

void HunspellDictionary::RaiseOwnWordsError() {
  if (!ownWordsError_) return;
  const Error error = *ownWordsError_;
  ownWordsError_.reset();
  throw error;
}

}  // namespace tagsmith
