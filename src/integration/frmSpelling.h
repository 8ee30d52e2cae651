#pragma once

#include <functional>

#include "core/Application.h"
#include "services/Buttons.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/TextBox.h"

namespace tagsmith::integration {

class SpellCheck;

/// Asks the user what to do with one doubtful word after the other. It stays on the screen from
/// word to word, in the corner where it covers the least of the text.
class frmSpelling : public Form {
 public:
  explicit frmSpelling(Application& application);

  Label lblWord{*this, "lblWord", ""};
  /// The line with the word.
  Label lblLine{*this, "lblLine", ""};
  Label lblChange{*this, "lblChange", "Change &To:"};
  TextBox txtChange{*this, "txtChange"};
  Label lblSuggestions{*this, "lblSuggestions", "&Suggestions:"};
  ListBox lstSuggestions{*this, "lstSuggestions", /*sorted=*/false};
  CommandButton cmdChange{*this, "cmdChange"};
  CommandButton cmdChangeAll{*this, "cmdChangeAll"};
  CommandButton cmdIgnore{*this, "cmdIgnore"};
  CommandButton cmdIgnoreAll{*this, "cmdIgnoreAll"};
  CommandButton cmdAdd{*this, "cmdAdd"};
  CommandButton cmdCancel{*this, "cmdCancel"};

  /// Shows the doubtful word of `check`, which outlives the form's stay on the screen. Looks for
  /// suggestions last, and throws the dictionary's `Error`: the word can be dealt with all the
  /// same.
  void ShowWord(SpellCheck& check);
  /// Called when the user has dealt with the word. Until the next one is shown, the buttons do
  /// nothing; closing the form always ends the check.
  std::function<void()> onDealtWith;

 private:
  void Bind();
  void ShowSuggestions();
  void Deal(const std::function<void()>& how);
  void lstSuggestions_Click();
  void lstSuggestions_DblClick();
  void cmdAdd_Click();
  void Form_Unload();

  Application& application_;
  SpellCheck* check_ = nullptr;  // Null while no word waits for an answer.
  SpellCheck* last_ = nullptr;   // The check of the word shown last.
  bool anySuggestions_ = false;
};

}  // namespace tagsmith::integration
