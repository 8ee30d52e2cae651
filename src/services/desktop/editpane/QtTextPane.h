#pragma once

#include <QPoint>
#include <QPointer>
#include <functional>
#include <memory>

#include "services/TextPane.h"

class QWidget;

namespace tagsmith {

class PagePrinter;
class SourceView;

/// The type of the data that a dragged control carries.
constexpr const char* kControlMimeType = "application/x-tagsmith-control";

/// A text pane on the screen. The pane owns its widget until something gives that a parent; the two
/// may die in either order. Without its widget the pane holds the empty text and takes no other.
class QtTextPane final : public TextPane {
 public:
  QtTextPane();
  ~QtTextPane() override;
  QtTextPane(const QtTextPane&) = delete;
  QtTextPane& operator=(const QtTextPane&) = delete;

  /// Null when the widget has died before the pane.
  QWidget* Widget() const;
  /// What is called, inside the drop event, when a control of the program (the type
  /// `kControlMimeType`) is dropped on the pane, with the place in the widget.
  void SetControlDropHandler(std::function<void(QPoint)> handler);

  void SetListener(TextPaneListener* listener) override;
  std::string Text() const override;
  void SetText(std::string_view text) override;
  std::size_t Length() const override;
  std::string TextRange(std::size_t start, std::size_t length) const override;
  std::size_t SelStart() const override;
  std::size_t SelLength() const override;
  void Select(std::size_t start, std::size_t length) override;
  void ShowSelection() override;
  void ReplaceSelection(std::string_view text) override;
  std::size_t LineFromPosition(std::size_t position) const override;
  FontSpec Font() const override;
  void SetFont(const FontSpec& font) override;
  void BeginUndoGroup() override;
  void EndUndoGroup() override;
  void Undo() override;
  void EmptyUndoHistory() override;
  std::size_t FormatRange(const PageRequest& request) override;
  void EndFormatting() override;

 private:
  QPointer<SourceView> view_;
  std::unique_ptr<PagePrinter> pagePrinter_;  // From the first page of a job to its end.
};

}  // namespace tagsmith
