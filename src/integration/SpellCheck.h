#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "integration/PageWords.h"
#include "services/Dictionary.h"

namespace tagsmith::integration {

/// How a check stands.
constexpr std::int16_t kCheckFinished = 0;
constexpr std::int16_t kCheckFailed = 1;    ///< Finished too: there is no dictionary.
constexpr std::int16_t kDoubtfulWord = -1;  ///< One is waiting to be dealt with.
constexpr std::int16_t kCheckEndedByUser = -3;

/// Checks the words of a page one after the other. It works on a copy of the page (UTF-8) and asks
/// the dictionary for each different word once. Positions are byte offsets into that copy, with the
/// corrections made so far. The functions that ask the dictionary throw its `Error`.
class SpellCheck {
 public:
  /// `dictionary` outlives the object.
  explicit SpellCheck(Dictionary& dictionary) : dictionary_(dictionary) {}
  SpellCheck(const SpellCheck&) = delete;
  SpellCheck& operator=(const SpellCheck&) = delete;

  /// Taken up by the next `CheckText`.
  WordOptions options;

  /// Begins a check of `text` and goes to the first doubtful word. What held in the check before
  /// is forgotten.
  void CheckText(std::string text);
  std::int16_t ResultCode() const { return code_; }
  /// Goes on behind the word that was dealt with; gives the new `ResultCode`. A check that is over
  /// stays over.
  std::int16_t ContinueCheck();

  /// Whether the copy has changed since `CheckedText` was last called.
  bool TextChanged() const { return changed_; }
  /// The copy as it is now: the text with the corrections and nothing else.
  std::string CheckedText();

  // --- The doubtful word ---

  std::size_t WordStart() const { return wordStart_; }
  /// As it stands in the copy, with its references; its correction once it has been changed.
  const std::string& CurrentWord() const { return currentWord_; }
  /// As it is spelt.
  const std::string& Spelling() const { return spelling_; }
  /// The line around the word, in one line, cut where it is long.
  std::string Surroundings() const;
  /// The name of the dictionary that does not have it.
  std::string DictionaryName() { return dictionary_.Name(); }
  std::vector<std::string> Suggestions() { return dictionary_.Suggest(spelling_); }

  // --- Dealing with it. What holds for all such words holds to the end of the check. ---

  void Change(std::string_view replacement);
  void ChangeAll(std::string_view replacement);
  void IgnoreAll() { verdicts_[spelling_].kind = Verdict::Kind::kRight; }
  /// Takes the word into the user's own; when that throws, it counts as right in this run.
  void Learn();
  /// Ends the check. Words that were to be changed all over are changed in the rest of the text.
  void EndByUser();

 private:
  struct Verdict {
    enum class Kind : std::uint8_t { kRight, kDoubtful, kChange };
    Kind kind = Kind::kRight;
    std::string replacement;
  };

  /// Lets a word be looked up without making a string of it.
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view word) const {
      return std::hash<std::string_view>{}(word);
    }
  };

  const Verdict& Judge(std::string_view word);
  std::string Correct(const PageWord& word, std::string_view replacement);
  std::string_view Written(const PageWord& word) const {
    return std::string_view(text_).substr(word.start, word.length);
  }

  Dictionary& dictionary_;
  std::string text_;
  std::optional<PageWords> words_;
  std::unordered_map<std::string, Verdict, Hash, std::equal_to<>> verdicts_;
  std::string corrected_;      // The copy up to where it differs from text_ last.
  std::size_t copied_ = 0;     // What of text_ stands in corrected_.
  PageWord word_;              // In text_.
  std::size_t wordStart_ = 0;  // In the copy.
  std::string currentWord_;
  std::string spelling_;
  std::int16_t code_ = kCheckFinished;
  bool changed_ = false;
};

}  // namespace tagsmith::integration
