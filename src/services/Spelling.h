#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tagsmith {

class Form;

/// How a spelling check stands.
enum class SpellingState {
  kFinished,
  kDoubtfulWord,  ///< A word waits to be dealt with.
  kEndedByUser,   ///< Cancelled in the word dialog.
};

/// The spelling component: finds the doubtful words of a page one at a time and lets the user deal
/// with each. It works on a copy of the text (UTF-8; positions are byte offsets). Calls throw
/// `Error`, as when there is no dictionary.
class Spelling {
 public:
  virtual ~Spelling() = default;

  /// Takes the text to check and goes to its first doubtful word.
  virtual SpellingState CheckText(std::string_view text) = 0;
  /// Goes on behind the word just dealt with.
  virtual SpellingState ContinueCheck() = 0;
  /// Asks the user about the doubtful word, in a dialog above `owner`.
  virtual SpellingState ShowWordDialog(Form& owner) = 0;

  /// Whether the copy differs from the text that was taken.
  virtual bool TextChanged() const = 0;
  virtual const std::string& CheckedText() const = 0;
  /// The doubtful word and where it starts in the copy.
  virtual std::size_t WordStart() const = 0;
  virtual const std::string& CurrentWord() const = 0;
};

}  // namespace tagsmith
