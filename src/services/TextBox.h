#pragma once

#include <string>
#include <string_view>

#include "services/Control.h"

namespace tagsmith {

/// A text field. The text is UTF-8 and goes in and out unharmed: only what the user edits changes.
/// A write to `Text` raises `onChange` if it changes the text, as does an edit by the user.
class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name, int index = kNoIndex);

  /// Whether line breaks are shown as such and the field has a vertical scroll bar. Written before
  /// the form is shown.
  bool MultiLine() const { return multiLine_; }
  void SetMultiLine(bool multiLine) { multiLine_ = multiLine; }
  /// Whether a long line of a multi-line field goes on below; if not, the field has a horizontal
  /// scroll bar too. Written before the form is shown.
  bool WrapsLines() const { return wrapsLines_; }
  void SetWrapsLines(bool wraps) { wrapsLines_ = wraps; }
  /// Whether a text that is written into a field of one line is selected, so that what the user
  /// types takes its place. Written before the form is shown.
  bool SelectsWritten() const { return selectsWritten_; }
  void SetSelectsWritten(bool selects) { selectsWritten_ = selects; }
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);

  Event<> onChange;
  /// A key that makes a character: its code, or 0 to take the key away.
  Event<int&> onKeyPress;

  // --- The user's actions ---

  /// Types the text at the end, key by key, as a test does.
  void Type(std::string_view text);
  /// A key that makes a character has been pressed; false if the handler has taken it away.
  bool UserKeyPress(int keyAscii);
  /// The user has edited the field: this is its whole text now.
  void UserEdit(std::string_view text);

 private:
  std::string text_;
  bool multiLine_ = false;
  bool wrapsLines_ = true;
  bool selectsWritten_ = false;
};

}  // namespace tagsmith
