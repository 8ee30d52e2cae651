#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "services/desktop/editpane/TextSpan.h"

class QsciScintillaBase;

namespace tagsmith {

/// The text of a Scintilla widget, byte for byte. Positions are byte offsets; Scintilla aborts on
/// one outside the text, so every value is first brought to a place in it where a caret can stand.
/// What is written here raises no notification of the widget: those cost time in proportion to the
/// position.
class ScintillaText {
 public:
  explicit ScintillaText(QsciScintillaBase& widget) : widget_(widget) {}

  std::size_t Length() const;
  /// The start of the character or of the CR LF that `position` falls into, or the end of the text.
  std::size_t Snap(std::size_t position) const;
  TextSpan Snap(std::size_t start, std::size_t length) const;
  /// The bytes of a span that lies in the text.
  std::string Bytes(const TextSpan& span) const;
  std::size_t LineFromPosition(std::size_t position) const;

  TextSpan Selection() const;
  /// Selects a span that lies in the text, the caret at its end, without scrolling.
  void Select(const TextSpan& span);

  /// Puts `text` in place of a span that lies in the text, as one undo step.
  void Replace(const TextSpan& span, std::string_view text);

  /// Without effect while a group is open. Whether there was something to undo or redo.
  bool Undo();
  bool Redo();
  /// What is changed between these two is one undo step. They nest; an end too many does nothing.
  void BeginGroup();
  void EndGroup();
  bool InGroup() const { return groups_ > 0; }
  void EmptyUndoHistory();

 private:
  QsciScintillaBase& widget_;
  int groups_ = 0;
};

}  // namespace tagsmith
