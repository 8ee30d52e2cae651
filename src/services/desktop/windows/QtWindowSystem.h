#pragma once

#include <memory>

#include "services/WindowSystem.h"

class QWidget;

namespace tagsmith {

/// Forms as windows of the desktop, edit panes as live source views. Needs a QApplication, whose
/// `exec` returns when the last form has left the screen.
class QtWindowSystem final : public WindowSystem {
 public:
  std::unique_ptr<FormView> MakeFormView(Form& form) override;
  std::unique_ptr<TextPane> MakeTextPane() override;

  /// The window of `form`, a parent for the dialogs that it opens; null if it was never shown.
  static QWidget* WindowOf(const Form& form);
};

}  // namespace tagsmith
