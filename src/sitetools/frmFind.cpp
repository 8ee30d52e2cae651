#include "sitetools/frmFind.h"

#include <string>

#include "core/frmMain.h"
#include "services/Dialogs.h"
#include "sitetools/ReplaceText.h"

namespace tagsmith::sitetools {
namespace {

constexpr Twips kFieldWidth = 4500;
constexpr int kEnter = 13;
constexpr int kFindNextButton = 1;

}  // namespace

frmFind::frmFind(Application& application)
    : Form(application.platform, "frmFind"), application_(application) {
  constexpr const char* kCaptions[] = {"&Find", "Find &Next", "&Replace", "Replace &All", "&Done"};
  SetCaption("Find and Replace");
  for (int i = 0; i < cmdCommand.Count(); ++i) cmdCommand(i).SetCaption(kCaptions[i]);
  txtFind.SetWidth(kFieldWidth);
  txtReplace.SetWidth(kFieldWidth);
  SetArrangement(Column(
      {lblTitle(0), txtFind, lblTitle(1), txtReplace,
       ButtonRow({cmdCommand(0), cmdCommand(1), cmdCommand(2), cmdCommand(3), cmdCommand(4)})}));

  onLoad = [this] { SetOnTop(true); };
  onUnload = [this](bool& /*cancel*/) { SetOnTop(false); };
  txtFind.onKeyPress = [this](int& keyAscii) { txtFind_KeyPress(keyAscii); };
  cmdCommand.Bind(&CommandButton::onClick, [this](int index) { cmdCommand_Click(index); });
}

void frmFind::cmdCommand_Click(int index) {
  switch (index) {
    case 0:
      return Find();
    case 1:
      return FindNext();
    case 2:
      return Replace();
    case 3:
      return ReplaceEach();
    case 4:
      Unload();
      return;
    default:
      return;
  }
}

void frmFind::txtFind_KeyPress(int& keyAscii) {
  if (keyAscii != kEnter) return;
  keyAscii = 0;
  cmdCommand_Click(0);
}

// --- The commands ---

void frmFind::Find() {
  if (const auto match = Search(0)) {
    SelectMatch(*match);
  } else {
    SayNotFound();
  }
  cmdCommand(kFindNextButton).SetFocus();
}

void frmFind::FindNext() {
  if (const auto match = Search(static_cast<std::size_t>(application_.FoundPos))) {
    SelectMatch(*match);
  } else {
    Find();
  }
}

void frmFind::Replace() {
  const auto match = Search(0);
  if (!match) {
    SayNotFound();
    return;
  }
  SelectMatch(*match);
  Document().SetSelText(txtReplace.Text());
}

// All replacements are one edit of the document, and so one step back.
void frmFind::ReplaceEach() {
  const ReplacedRange range =
      ReplaceAll(Document().Text(), TextSearch(txtFind.Text()), txtReplace.Text());
  if (range.count > 0) PutIntoDocument(range);
  if (range.count > 0 || range.endedBySearch) application_.FoundPos = range.foundPos;
  if (!range.endedBySearch) return;
  if (range.count == 0) {
    SayNotFound();
  } else {
    Say(std::to_string(range.count) + " Replacements Were Made", "Replace All Completed...");
  }
}

// --- Their steps ---

std::optional<TextSearch::Match> frmFind::Search(std::size_t from) {
  const auto match = TextSearch(txtFind.Text()).Find(Document().Text(), from);
  application_.FoundPos = match ? static_cast<std::int32_t>(match->start + 1) : 0;
  return match;
}

void frmFind::SelectMatch(const TextSearch::Match& match) {
  Document().SetFocus();
  Document().SetSelStart(match.start);
  Document().SetSelLength(match.length);
}

void frmFind::PutIntoDocument(const ReplacedRange& range) {
  // Within a step the pane shows only what comes out of it, and need not colour the old text down
  // to the end of the selection.
  const RichTextBox::UndoGroup step(Document());
  SelectMatch({range.start, range.end - range.start});
  Document().SetSelText(range.text);
}

void frmFind::SayNotFound() { Say(txtFind.Text() + " Was Not Found", "Sorry..."); }

void frmFind::Say(const std::string& prompt, const char* title) {
  application_.MsgBox(*this, prompt, kInformationIcon, title);
}

RichTextBox& frmFind::Document() const { return application_.MainForm().txtEdit; }

}  // namespace tagsmith::sitetools
