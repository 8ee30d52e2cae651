#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "services/Control.h"
#include "services/TextPane.h"

namespace tagsmith {

/// An edit pane: plain text in one font. It has no copy of the text; `TextPane` tells the units and
/// encodings. Every write that can change the text raises `onChange` inside the statement.
class RichTextBox : public Control, private TextPaneListener {
 public:
  RichTextBox(Form& form, std::string name);
  ~RichTextBox() override;

  std::string Text() const { return pane_->Text(); }
  void SetText(std::string_view text);
  std::size_t TextLength() const { return pane_->Length(); }
  std::string TextRange(std::size_t start, std::size_t length) const {
    return pane_->TextRange(start, length);
  }

  std::size_t SelStart() const { return pane_->SelStart(); }
  /// Clears the selection.
  void SetSelStart(std::size_t position) { pane_->Select(position, 0); }
  std::size_t SelLength() const { return pane_->SelLength(); }
  void SetSelLength(std::size_t length) { pane_->Select(pane_->SelStart(), length); }
  /// For a word that the user is to see while an undo step is open.
  void ShowSelection() { pane_->ShowSelection(); }
  std::string SelText() const { return TextRange(SelStart(), SelLength()); }
  void SetSelText(std::string_view text);

  /// The one font: an attribute of the selection is one of the whole text.
  FontSpec SelFont() const { return pane_->Font(); }
  void SetSelFont(const FontSpec& font) { pane_->SetFont(font); }

  std::size_t GetLineFromChar(std::size_t position) const {
    return pane_->LineFromPosition(position);
  }

  /// Forgets what could be undone.
  void EmptyUndoHistory() { pane_->EmptyUndoHistory(); }

  /// Page formatting, as `TextPane` tells.
  std::size_t FormatRange(const PageRequest& request) { return pane_->FormatRange(request); }
  void EndFormatting() { pane_->EndFormatting(); }

  /// An object whose lifetime is one undo step.
  class UndoGroup {
   public:
    explicit UndoGroup(RichTextBox& box) : pane_(*box.pane_) { pane_.BeginUndoGroup(); }
    ~UndoGroup() { pane_.EndUndoGroup(); }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

   private:
    TextPane& pane_;
  };

  Event<> onChange;
  /// A key that makes a character: its code, or 0 to take the key away.
  Event<int&> onKeyPress;
  /// Another control was dropped here; the place is in twips from the top left corner.
  Event<Control&, Twips, Twips> onDragDrop;

  /// The live component, for the view and for tests.
  TextPane& Pane() const { return *pane_; }

  /// The user drops `source` here.
  void Drop(Control& source, Twips x, Twips y);

 private:
  void UserChanged() override;
  bool UserKeyPress(int keyAscii) override;

  std::unique_ptr<TextPane> pane_;
};

}  // namespace tagsmith
