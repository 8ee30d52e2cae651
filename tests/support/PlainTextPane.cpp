#include "support/PlainTextPane.h"

#include <algorithm>
#include <utility>

#include "services/Clipboard.h"
#include "services/Lines.h"
#include "services/Utf8.h"

namespace tagsmith {

// --- The user ---

void PlainTextPane::Type(std::string_view text) {
  while (!text.empty()) {
    const DecodedChar character = DecodeUtf8(text, 0);
    std::size_t length = std::max<std::size_t>(character.length, 1);
    if (text.starts_with("\r\n")) length = 2;
    const bool isLineEnd = text.front() == '\r' || text.front() == '\n';
    const int key = isLineEnd ? '\r' : static_cast<int>(character.codePoint);
    if (listener_ == nullptr || listener_->UserKeyPress(key)) {
      UserReplace(isLineEnd ? std::string_view(lineEnd_) : text.substr(0, length));
    }
    text.remove_prefix(length);
  }
}

void PlainTextPane::PressKeys(std::string_view keys) {
  if (keys.size() != 4 || !keys.starts_with("^(")) return Type(keys);
  const char key = keys[2];
  if (key == 'z') {
    if (TryUndo()) TellChange();
  } else if (key == 'v') {
    const std::string text = clipboard_->GetText();
    if (!text.empty()) UserReplace(text);
  } else if (selection_.length > 0) {
    clipboard_->SetText(TextRange(selection_.start, selection_.length));
    if (key == 'x') UserReplace({});
  }
}

void PlainTextPane::UserReplace(std::string_view text) {
  Replace(selection_, text);
  TellChange();
}

// --- The pane ---

std::size_t PlainTextPane::Snap(std::size_t position) const {
  const bool inLineEnd =
      position > 0 && position < text_.size() && text_.compare(position - 1, 2, "\r\n") == 0;
  return inLineEnd ? position - 1 : SnapToCharacter(text_, position);
}

PlainTextPane::Span PlainTextPane::Snap(std::size_t start, std::size_t length) const {
  const std::size_t clamped = std::min(start, text_.size());
  const std::size_t end = clamped + std::min(length, text_.size() - clamped);
  const std::size_t first = Snap(clamped);
  return {first, Snap(end) - first};
}

void PlainTextPane::Replace(Span span, std::string_view text) {
  if (groups_ == 0) undo_.emplace_back();
  undo_.back().push_back({span.start, text_.substr(span.start, span.length), std::string(text)});
  text_.replace(span.start, span.length, text);
  selection_ = {Snap(span.start + text.size()), 0};
}

void PlainTextPane::SetText(std::string_view text) {
  lineEnd_ = PrevailingLineEnd(text);
  Replace({0, text_.size()}, text);
  selection_ = {};
}

std::size_t PlainTextPane::LineFromPosition(std::size_t position) const {
  return CountLineEnds(std::string_view(text_).substr(0, Snap(position)));
}

bool PlainTextPane::TryUndo() {
  if (groups_ > 0 || undo_.empty()) return false;
  const Step step = std::exchange(undo_.back(), {});
  undo_.pop_back();
  for (auto edit = step.rbegin(); edit != step.rend(); ++edit) {
    text_.replace(edit->start, edit->inserted.size(), edit->removed);
    selection_ = {Snap(edit->start + edit->removed.size()), 0};
  }
  return true;
}

std::size_t PlainTextPane::FormatRange(const PageRequest& request) {
  pages.push_back(request);
  formatting = true;
  const auto fits = static_cast<std::size_t>(std::max(request.drawing.height / 240, 0));
  return std::min(request.firstCharacter + fits, text_.size());
}

}  // namespace tagsmith
