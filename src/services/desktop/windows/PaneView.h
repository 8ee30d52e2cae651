#pragma once

#include "services/RichTextBox.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

/// Puts the live source view of an edit pane into the window.
class PaneView final : public ViewOf<RichTextBox> {
 public:
  PaneView(RichTextBox& control, ViewHost& host, QWidget& parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TakeDrop(QPoint place);
};

}  // namespace tagsmith
