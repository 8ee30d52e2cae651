#include "integration/SpellingCommand.h"

#include <algorithm>
#include <exception>
#include <string_view>

#include "core/frmMain.h"
#include "integration/frmSpelling.h"
#include "services/Dialogs.h"
#include "services/EventQueue.h"
#include "services/Utf8.h"

namespace tagsmith::integration {
namespace {

bool IsDoubtful(std::int16_t result) { return result == -1 || result == -2; }

/// What of a text has to be replaced to make it another.
struct Difference {
  std::size_t start = 0;
  std::size_t length = 0;
  std::string_view replacement;
};

bool IsBorder(std::string_view text, std::size_t position) {
  const bool inLineEnd = position > 0 && text.substr(position - 1, 2) == "\r\n";
  return !inLineEnd && SnapToCharacter(text, position) == position;
}

Difference Compare(std::string_view before, std::string_view after) {
  const auto front = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
  auto start = static_cast<std::size_t>(front - before.begin());
  while (start > 0 && (!IsBorder(before, start) || !IsBorder(after, start))) --start;

  const std::size_t most = std::min(before.size(), after.size()) - start;
  const auto lastMost = before.rbegin() + static_cast<std::ptrdiff_t>(most);
  const auto back = std::mismatch(before.rbegin(), lastMost, after.rbegin()).first;
  auto same = static_cast<std::size_t>(back - before.rbegin());
  while (same > 0 &&
         (!IsBorder(before, before.size() - same) || !IsBorder(after, after.size() - same))) {
    --same;
  }
  return {start, before.size() - same - start, after.substr(start, after.size() - same - start)};
}

}  // namespace

SpellingCommand::SpellingCommand(Application& application)
    : application_(application),
      txtEdit_(application.MainForm().txtEdit),
      mySpell_(application.platform.dictionary) {}

void SpellingCommand::cmdSpellCheck_Click() {
  if (application_.platform.forms.Loaded<frmSpelling>() != nullptr) return;
  mySpell_.options.pageTextOnly = true;
  mySpell_.options.passOverCapitals = false;
  mySpell_.options.leastLetters = 0;
  mySpell_.options.passOverDigits = true;

  Try([this] { mySpell_.CheckText(txtEdit_.Text()); });
  Try([this] { application_.platform.dictionary.RaiseOwnWordsError(); });
  if (ShowNextWord(mySpell_.ResultCode())) {
    Dialog().Show(Modality::kModal, &application_.MainForm());
  }
  if (!IsOver()) Try([this] { ShowCheckedText(); });
}

// Goes on to the next doubtful word and puts it before the user; false if there is none left.
bool SpellingCommand::ShowNextWord(std::int16_t result) {
  while (result < 0 && result != kCheckEndedByUser && !IsOver()) {
    if (IsDoubtful(result)) {
      if (!step_) step_.emplace(txtEdit_);
      Try([this] { ShowCheckedText(); });
      SelectWord();
      txtEdit_.ShowSelection();
      Try([this] { Dialog().ShowWord(mySpell_); });
      return true;
    }
    result = TryContinue();
  }
  return false;
}

// The dialog stays for the next word, so that nothing flickers.
void SpellingCommand::WordDealtWith() {
  if (mySpell_.ResultCode() <= 0 && mySpell_.ResultCode() != kCheckEndedByUser) {
    Try([this] { ShowCheckedText(); });
    if (ShowNextWord(TryContinue())) return;
  }
  if (auto* dialog = application_.platform.forms.Loaded<frmSpelling>()) dialog->Unload();
}

std::int16_t SpellingCommand::TryContinue() {
  Try([this] { application_.platform.events.DoEvents(); });
  std::int16_t result = kCheckFailed;
  Try([&] { result = mySpell_.ContinueCheck(); });
  return result;
}

// Writes what is different only: the view stays where it is, and the history small.
void SpellingCommand::ShowCheckedText() {
  if (!mySpell_.TextChanged()) return;
  const std::string before = txtEdit_.Text();
  const std::string after = mySpell_.CheckedText();
  const Difference difference = Compare(before, after);
  txtEdit_.SetSelStart(difference.start);
  txtEdit_.SetSelLength(difference.length);
  txtEdit_.SetSelText(difference.replacement);
  SelectWord();
}

void SpellingCommand::SelectWord() {
  txtEdit_.SetSelStart(mySpell_.WordStart());
  txtEdit_.SetSelLength(mySpell_.CurrentWord().size());
}

// The main form may be closed between two words.
bool SpellingCommand::IsOver() const { return !application_.MainForm().IsLoaded(); }

void SpellingCommand::Try(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const std::exception& error) {
    Form* owner = application_.platform.forms.Loaded<frmSpelling>();
    if (owner == nullptr || !owner->IsVisible()) owner = &application_.MainForm();
    application_.MsgBox(*owner, error.what(), kOkOnly, application_.Title());
  }
}

frmSpelling& SpellingCommand::Dialog() {
  auto& dialog = application_.Instance<frmSpelling>();
  dialog.onDealtWith = [this] { WordDealtWith(); };
  return dialog;
}

void BindSpelling(Application& application) {
  frmMain& form = application.MainForm();
  form.cmdSpellCheck.onClick = [&application] {
    SpellingCommand(application).cmdSpellCheck_Click();
  };
  form.mnuCheckSpelling.onClick = form.cmdSpellCheck.onClick.Bound();
}

}  // namespace tagsmith::integration
