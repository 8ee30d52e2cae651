#include "services/desktop/windows/QtWindowSystem.h"

#include "services/desktop/editpane/QtTextPane.h"
#include "services/desktop/windows/FormWindow.h"

namespace tagsmith {

std::unique_ptr<FormView> QtWindowSystem::MakeFormView(Form& form) {
  return std::make_unique<FormWindow>(form);
}

std::unique_ptr<TextPane> QtWindowSystem::MakeTextPane() { return std::make_unique<QtTextPane>(); }

QWidget* QtWindowSystem::WindowOf(const Form& form) {
  auto* view = static_cast<FormWindow*>(form.View());
  return view != nullptr ? &view->Window() : nullptr;
}

}  // namespace tagsmith
