#include "integration/frmSpelling.h"

#include <string>
#include <utility>
#include <vector>

#include "integration/SpellCheck.h"
#include "services/Dialogs.h"
#include "services/Error.h"

namespace tagsmith::integration {
namespace {

constexpr Twips kFieldWidth = 3600;
constexpr Twips kLineWidth = 5400;
constexpr std::string_view kCaption = "Check Spelling";
constexpr std::string_view kNoSuggestions = "(No Suggestions)";

}  // namespace

frmSpelling::frmSpelling(Application& application)
    : Form(application.platform, "frmSpelling"), application_(application) {
  SetCaption(kCaption);
  const std::pair<CommandButton&, const char*> buttons[] = {
      {cmdChange, "&Change"}, {cmdChangeAll, "Change &All"},
      {cmdIgnore, "&Ignore"}, {cmdIgnoreAll, "I&gnore All"},
      {cmdAdd, "A&dd"},       {cmdCancel, "Ca&ncel"}};
  for (const auto& [button, caption] : buttons) button.SetCaption(caption);
  for (Label* label : {&lblWord, &lblLine}) label->SetPlainCaption(true);
  lblLine.SetWidth(kLineWidth);
  txtChange.SetWidth(kFieldWidth);
  txtChange.SetSelectsWritten(true);
  SetDefaultButton(cmdChange);
  SetInitialFocus(txtChange);
  SetArrangement(Column(
      {lblWord, lblLine,
       Row({Column({lblChange, txtChange, lblSuggestions, lstSuggestions}),
            Column({cmdChange, cmdChangeAll, cmdIgnore, cmdIgnoreAll, cmdAdd, cmdCancel})})}));
  Bind();
}

void frmSpelling::Bind() {
  onLoad = [this] { SetOnTop(true); };
  onUnload = [this](bool& /*cancel*/) { Form_Unload(); };
  cmdChange.onClick = [this] { Deal([this] { check_->Change(txtChange.Text()); }); };
  cmdChangeAll.onClick = [this] { Deal([this] { check_->ChangeAll(txtChange.Text()); }); };
  cmdIgnore.onClick = [this] { Deal([] {}); };
  cmdIgnoreAll.onClick = [this] { Deal([this] { check_->IgnoreAll(); }); };
  cmdAdd.onClick = [this] { cmdAdd_Click(); };
  cmdCancel.onClick = [this] { Unload(); };
  lstSuggestions.onClick = [this] { lstSuggestions_Click(); };
  lstSuggestions.onDblClick = [this] { lstSuggestions_DblClick(); };
}

// --- The word ---

void frmSpelling::ShowWord(SpellCheck& check) {
  check_ = last_ = &check;
  lblWord.SetCaption("Not in the dictionary: " + check.Spelling());
  lblLine.SetCaption(check.Surroundings());
  txtChange.SetText(check.Spelling());
  lstSuggestions.Clear();
  anySuggestions_ = false;
  // Where the desktop's own language has no dictionary, the user sees which one is used.
  SetCaption(std::string(kCaption) + " (" + check.DictionaryName() + ")");
  ShowSuggestions();
}

void frmSpelling::ShowSuggestions() {
  std::vector<std::string> suggestions = check_->Suggestions();
  anySuggestions_ = !suggestions.empty();
  if (!anySuggestions_) suggestions.emplace_back(kNoSuggestions);
  lstSuggestions.AddItems(suggestions);
  if (anySuggestions_) lstSuggestions.SetListIndex(0);
}

void frmSpelling::lstSuggestions_Click() {
  const bool chosen = anySuggestions_ && lstSuggestions.ListIndex() >= 0;
  if (chosen) txtChange.SetText(lstSuggestions.Text());
}

void frmSpelling::lstSuggestions_DblClick() {
  lstSuggestions_Click();
  if (anySuggestions_) cmdChange.Click();
}

// --- Dealing with it ---

void frmSpelling::Deal(const std::function<void()>& how) {
  if (check_ == nullptr) return;
  how();
  check_ = nullptr;
  if (onDealtWith) onDealtWith();
}

void frmSpelling::cmdAdd_Click() {
  Deal([this] {
    try {
      check_->Learn();
    } catch (const Error& error) {
      application_.MsgBox(*this, error.what(), kOkOnly, application_.Title());
    }
  });
}

// However the form goes, no word is left waiting.
void frmSpelling::Form_Unload() {
  SetOnTop(false);
  check_ = nullptr;
  if (last_ != nullptr) last_->EndByUser();
}

}  // namespace tagsmith::integration
