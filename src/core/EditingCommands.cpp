#include "core/EditingCommands.h"

#include <string>

#include "core/Application.h"
#include "core/EditorFont.h"
#include "core/frmDate.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/Error.h"
#include "services/Keyboard.h"

namespace tagsmith {
namespace {

constexpr int kTabKey = 9;
constexpr std::string_view kTabText = "     ";

// Between the tags of the title in the template as it is delivered.
constexpr std::size_t kTitlePosition = 30;

// The first position on a line, or the length of the text and one more if there is no such line.
std::size_t FirstPositionOfLine(const RichTextBox& pane, std::size_t line) {
  std::size_t low = 0;
  std::size_t high = pane.TextLength() + 1;
  while (low < high) {
    const std::size_t middle = low + (high - low) / 2;
    if (pane.GetLineFromChar(middle) < line) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return low;
}

}  // namespace

EditingCommands::EditingCommands(frmMain& form) : form_(form), application_(form.App()) { Bind(); }

void EditingCommands::Bind() {
  BindKeys(form_.mnuEditUndo, nullptr, "^(z)");
  BindKeys(form_.mnuEditCut, &form_.cmdCut, "^(x)");
  BindKeys(form_.mnuEditCopy, &form_.cmdCopy, "^(c)");
  BindKeys(form_.mnuEditPaste, &form_.cmdPaste, "^(v)");
  BindBlock(form_.cmdCommentBlock, CommentBlock);
  BindBlock(form_.cmdUnCommentBlock, UncommentBlock);
  form_.mnuGotoLine.onClick = [this] { mnuGotoLine_Click(); };
  form_.mnuInsertDate.onClick = [this] { mnuInsertDate_Click(); };
  form_.mnuFonts.onClick = [this] { mnuFonts_Click(); };
  form_.txtEdit.onKeyPress = [this](int& keyAscii) { txtEdit_KeyPress(keyAscii); };
}

void EditingCommands::BindKeys(Menu& entry, CommandButton* button, std::string_view keys) {
  entry.onClick = [this, keys] { application_.platform.keyboard.SendKeys(keys); };
  if (button == nullptr) return;
  button->onClick = [this, keys] {
    form_.txtEdit.SetFocus();
    application_.platform.keyboard.SendKeys(keys);
  };
}

void EditingCommands::BindBlock(CommandButton& button, BlockFunction function) {
  button.onClick = [this, function] {
    RichTextBox& pane = form_.txtEdit;
    pane.SetFocus();  // With no document open this starts one, so it comes first.
    Apply(
        function(pane.Text(), pane.SelStart(), pane.SelLength(), application_.gBlockCommentSymbol));
  };
}

void EditingCommands::Apply(const TextEdit& edit) {
  RichTextBox& pane = form_.txtEdit;
  if (pane.TextRange(edit.start, edit.length) != edit.replacement) {
    pane.Pane().Select(edit.start, edit.length);
    pane.SetSelText(edit.replacement);
  }
  pane.Pane().Select(edit.selStart, edit.selLength);
}

void EditingCommands::mnuGotoLine_Click() {
  GotoLine(Val(application_.InputBox(form_, "Enter Line Number To Jump To", "Jump To Line")));
}

void EditingCommands::GotoLine(double line) {
  RichTextBox& pane = form_.txtEdit;
  const std::size_t lastLine = pane.GetLineFromChar(pane.TextLength());
  if (line < 1 || line - 1 > static_cast<double>(lastLine)) return;
  const auto target = static_cast<std::size_t>(line - 1);
  if (static_cast<double>(target) != line - 1) return;
  pane.SetSelStart(FirstPositionOfLine(pane, target));
  pane.SetFocus();
}

void EditingCommands::mnuInsertDate_Click() {
  application_.Instance<frmDate>().Show(Modality::kModal, &form_);
  if (!application_.gDateText.empty()) form_.InsertText(application_.gDateText);
}

void EditingCommands::SelectAll() {
  form_.txtEdit.SetSelStart(0);
  form_.txtEdit.SetSelLength(form_.txtEdit.TextLength());
}

void EditingCommands::mnuFonts_Click() {
  SelectAll();
  try {
    ChooseFont();
  } catch (const Error&) {
    form_.txtEdit.SetSelLength(0);
  }
}

void EditingCommands::ChooseFont() {
  RichTextBox& pane = form_.txtEdit;
  CommonDialog& dialog = form_.dlgCommonDialog;
  dialog.cancelError = true;
  dialog.flags = kScreenAndPrinterFonts;
  dialog.font = pane.SelFont();
  dialog.ShowFont();
  pane.SetSelFont(dialog.font);
  pane.SetSelLength(0);
  pane.SetFocus();
  SaveEditorFont(application_, pane.SelFont());
}

void EditingCommands::RestoreFontInfo() {
  SelectAll();
  form_.txtEdit.SetSelFont(ReadEditorFont(application_));
  form_.txtEdit.SetSelLength(0);
  form_.txtEdit.SetFocus();
  form_.txtEdit.SetSelStart(kTitlePosition);
}

void EditingCommands::txtEdit_KeyPress(int& keyAscii) {
  if (keyAscii != kTabKey) return;
  form_.InsertText(kTabText);
  keyAscii = 0;
}

}  // namespace tagsmith
