#include "services/desktop/editpane/QtTextPane.h"

#include "services/desktop/editpane/PagePrinter.h"
#include "services/desktop/editpane/SourceView.h"

namespace tagsmith {

QtTextPane::QtTextPane() : view_(new SourceView) {}

QtTextPane::~QtTextPane() {
  SetListener(nullptr);
  if (view_ && view_->parent() == nullptr) delete view_.data();
}

QWidget* QtTextPane::Widget() const { return view_; }

void QtTextPane::SetControlDropHandler(std::function<void(QPoint)> handler) {
  if (view_) view_->SetControlDropHandler(std::move(handler));
}

void QtTextPane::SetListener(TextPaneListener* listener) {
  if (view_) view_->SetListener(listener);
}

std::string QtTextPane::Text() const {
  return view_ ? view_->Content().Bytes({0, view_->Content().Length()}) : std::string();
}

void QtTextPane::SetText(std::string_view text) {
  if (view_) view_->SetWholeText(text);
}

std::size_t QtTextPane::Length() const { return view_ ? view_->Content().Length() : 0; }

std::string QtTextPane::TextRange(std::size_t start, std::size_t length) const {
  return view_ ? view_->Content().Bytes(view_->Content().Snap(start, length)) : std::string();
}

std::size_t QtTextPane::SelStart() const { return view_ ? view_->Content().Selection().start : 0; }

std::size_t QtTextPane::SelLength() const {
  return view_ ? view_->Content().Selection().length : 0;
}

void QtTextPane::Select(std::size_t start, std::size_t length) {
  if (view_) view_->SelectSpan(view_->Content().Snap(start, length));
}

void QtTextPane::ShowSelection() {
  if (view_) view_->ShowSelection();
}

void QtTextPane::ReplaceSelection(std::string_view text) {
  if (view_) view_->ReplaceSelection(text);
}

std::size_t QtTextPane::LineFromPosition(std::size_t position) const {
  return view_ ? view_->Content().LineFromPosition(position) : 0;
}

FontSpec QtTextPane::Font() const { return view_ ? view_->Font() : FontSpec(); }

void QtTextPane::SetFont(const FontSpec& font) {
  if (view_) view_->SetPaneFont(font);
}

void QtTextPane::BeginUndoGroup() {
  if (view_) view_->BeginUndoGroup();
}

void QtTextPane::EndUndoGroup() {
  if (view_) view_->EndUndoGroup();
}

void QtTextPane::Undo() {
  if (view_) view_->UndoStep();
}

void QtTextPane::EmptyUndoHistory() {
  if (view_) view_->EmptyUndoHistory();
}

std::size_t QtTextPane::FormatRange(const PageRequest& request) {
  if (!view_) return 0;
  if (pagePrinter_ == nullptr) pagePrinter_ = std::make_unique<PagePrinter>(view_->Font());
  return pagePrinter_->Format(view_->Content(), request);
}

void QtTextPane::EndFormatting() { pagePrinter_.reset(); }

}  // namespace tagsmith
