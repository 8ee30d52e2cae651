#include "services/RichTextBox.h"

#include "services/Form.h"
#include "services/Platform.h"

namespace tagsmith {

RichTextBox::RichTextBox(Form& form, std::string name)
    : Control(form, ControlKind::kRichTextBox, std::move(name)),
      pane_(form.GetPlatform().windows.MakeTextPane()) {
  pane_->SetListener(this);
}

RichTextBox::~RichTextBox() { pane_->SetListener(nullptr); }

void RichTextBox::SetText(std::string_view text) {
  pane_->SetText(text);
  Raise(onChange);
}

void RichTextBox::SetSelText(std::string_view text) {
  if (text.empty() && SelLength() == 0) return;
  pane_->ReplaceSelection(text);
  Raise(onChange);
}

void RichTextBox::Drop(Control& source, Twips x, Twips y) {
  if (TakesInput()) Raise(onDragDrop, source, x, y);
}

void RichTextBox::UserChanged() { Raise(onChange); }

bool RichTextBox::UserKeyPress(int keyAscii) {
  Raise(onKeyPress, keyAscii);
  return keyAscii != 0;
}

}  // namespace tagsmith
