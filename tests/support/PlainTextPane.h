#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/TextPane.h"

namespace tagsmith {

class Clipboard;

/// A text pane without a widget, and the user who works in it.
class PlainTextPane final : public TextPane {
 public:
  PlainTextPane() = default;
  explicit PlainTextPane(Clipboard& clipboard) : clipboard_(&clipboard) {}

  // --- The user ---

  /// Types a text key by key: a line end is the Enter key.
  void Type(std::string_view text);
  /// Presses "^(z)", "^(x)", "^(c)" or "^(v)", which need the clipboard; all else is typed.
  void PressKeys(std::string_view keys);

  // --- The pane ---

  void SetListener(TextPaneListener* listener) override { listener_ = listener; }
  std::string Text() const override { return text_; }
  void SetText(std::string_view text) override;
  std::size_t Length() const override { return text_.size(); }
  std::string TextRange(std::size_t start, std::size_t length) const override {
    const Span span = Snap(start, length);
    return text_.substr(span.start, span.length);
  }
  std::size_t SelStart() const override { return selection_.start; }
  std::size_t SelLength() const override { return selection_.length; }
  void Select(std::size_t start, std::size_t length) override { selection_ = Snap(start, length); }
  void ShowSelection() override { shownSelection = SelStart(); }
  void ReplaceSelection(std::string_view text) override {
    if (selection_.length > 0 || !text.empty()) Replace(selection_, text);
  }
  std::size_t LineFromPosition(std::size_t position) const override;
  FontSpec Font() const override { return font_; }
  void SetFont(const FontSpec& font) override { font_ = font; }
  void BeginUndoGroup() override {
    if (groups_++ == 0) undo_.emplace_back();
  }
  void EndUndoGroup() override {
    if (groups_ == 0 || --groups_ > 0) return;
    if (undo_.back().empty()) undo_.pop_back();
  }
  void Undo() override { TryUndo(); }
  void EmptyUndoHistory() override {
    undo_.clear();
    if (groups_ > 0) undo_.emplace_back();
  }
  /// A page holds as many bytes as its drawing rectangle is high, in lines of 240 twips.
  std::size_t FormatRange(const PageRequest& request) override;
  void EndFormatting() override { formatting = false; }

  /// The pages that were asked for, and whether what they keep has not been freed yet.
  std::vector<PageRequest> pages;
  bool formatting = false;
  /// Where the selection was when it was last to be shown.
  std::size_t shownSelection = 0;

 private:
  struct Span {
    std::size_t start = 0;
    std::size_t length = 0;
  };
  struct Edit {
    std::size_t start;
    std::string removed;
    std::string inserted;
  };
  using Step = std::vector<Edit>;

  std::size_t Snap(std::size_t position) const;
  Span Snap(std::size_t start, std::size_t length) const;
  void Replace(Span span, std::string_view text);
  bool TryUndo();
  void UserReplace(std::string_view text);
  void TellChange() {
    if (listener_ != nullptr) listener_->UserChanged();
  }

  std::string text_;
  Span selection_;
  FontSpec font_;
  std::string lineEnd_ = "\r\n";
  std::vector<Step> undo_;
  int groups_ = 0;
  TextPaneListener* listener_ = nullptr;
  Clipboard* clipboard_ = nullptr;
};

}  // namespace tagsmith
