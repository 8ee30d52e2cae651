#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "core/Application.h"
#include "integration/SpellCheck.h"
#include "services/RichTextBox.h"

namespace tagsmith::integration {

class frmSpelling;

/// One check of the whole text of the pane, word by word with the user. All corrections are one
/// step back.
class SpellingCommand {
 public:
  explicit SpellingCommand(Application& application);

  /// Runs the check, unless one is running. Each error is shown to the user, and the next statement
  /// runs.
  void cmdSpellCheck_Click();

 private:
  bool ShowNextWord(std::int16_t result);
  void WordDealtWith();
  void ShowCheckedText();
  void SelectWord();
  bool IsOver() const;
  void Try(const std::function<void()>& statement);
  std::int16_t TryContinue();
  frmSpelling& Dialog();

  Application& application_;
  RichTextBox& txtEdit_;
  SpellCheck mySpell_;
  std::optional<RichTextBox::UndoGroup> step_;
};

/// Binds the command to its button and its menu entry.
void BindSpelling(Application& application);

}  // namespace tagsmith::integration
