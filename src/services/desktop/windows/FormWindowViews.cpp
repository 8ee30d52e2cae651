// How a form's window makes the views of its controls.
#include <algorithm>

#include "services/Menu.h"
#include "services/SSTab.h"
#include "services/desktop/windows/ArrangementLayout.h"
#include "services/desktop/windows/FormWindow.h"
#include "services/desktop/windows/ViewFactory.h"

namespace tagsmith {

void FormWindow::MakeMenus() {
  ViewHost& host = *this;
  for (Menu* menu : form_.Menus()) {
    menus_.push_back(std::make_unique<MenuView>(*menu, host, window_->MenuBar()));
  }
}

void FormWindow::MakeViews() {
  QWidget& client = window_->Client();
  if (HasLayout()) {
    ArrangementLayout(scale_, [this](Control& control, QWidget& parent) {
      return MakeView(control, parent);
    }).Realise(*form_.GetArrangement(), client);
  } else {
    MakeChildren(nullptr, 0, client);
  }
  LinkLabels();
  SetTabOrder();
}

WidgetView* FormWindow::MakeView(Control& control, QWidget& parent) {
  std::unique_ptr<WidgetView> made = MakeControlView(control, *this, parent);
  if (made == nullptr) return nullptr;
  WidgetView* view = made.get();
  views_.push_back(std::move(made));
  if (control.Kind() == ControlKind::kStatusBar) statusBar_ = view;
  if (control.Kind() == ControlKind::kFrame || control.Kind() == ControlKind::kPictureBox) {
    if (!HasLayout() || control.Kind() == ControlKind::kPictureBox) {
      MakeChildren(&control, 0, *view->ChildParent(0));
    }
  }
  if (control.Kind() == ControlKind::kSSTab) view->Changed(Property::kTab);
  return view;
}

void FormWindow::MakeChildren(const Control* container, int page, QWidget& parent) {
  std::vector<WidgetView*> behind;
  const std::vector<Control*> controls = form_.Controls();
  for (Control* control : controls) {
    if (control->Container() != container || control->Page() != page) continue;
    if (control->View() != nullptr) continue;
    WidgetView* view = MakeView(*control, parent);
    if (view == nullptr) continue;
    view->StandByBounds();
    if (shown_) view->Place();
    if (StandsBehind(control->Kind())) behind.push_back(view);
  }
  // Texts and figures lie behind what takes input, the later ones in front.
  std::for_each(behind.rbegin(), behind.rend(), [](WidgetView* view) { view->Widget()->lower(); });
}

void FormWindow::MakePage(const SSTab& tab, int page) {
  auto* view = static_cast<WidgetView*>(tab.View());
  if (view == nullptr || page < 0) return;
  const std::size_t before = views_.size();
  MakeChildren(&tab, page, *view->ChildParent(page));
  if (views_.size() == before || !shown_) return;
  LinkLabels();
  SetTabOrder();
}

void FormWindow::LinkLabels() const {
  std::vector<WidgetView*> views;
  views.reserve(views_.size());
  for (const auto& view : views_) views.push_back(view.get());
  LinkLabelsToFields(views);
}

void FormWindow::SetTabOrder() const {
  QWidget* before = nullptr;
  const auto append = [&before](const WidgetView& view) {
    QWidget* target = view.FocusTarget();
    if (target->focusPolicy() == Qt::NoFocus) return;
    if (before != nullptr) QWidget::setTabOrder(before, target);
    before = target;
  };
  if (HasLayout()) {
    for (const auto& view : views_) append(*view);
    return;
  }
  for (const Control* control : form_.Controls()) {
    if (control->Kind() == ControlKind::kMenu || control->View() == nullptr) continue;
    append(*static_cast<WidgetView*>(control->View()));
  }
}

void FormWindow::ControlsChanged() {
  controlsChanged_ = true;
  afterEvent_.start();  // The control is still being made, or is half gone.
}

void FormWindow::SyncViews() {
  DropViewsOfGoneControls();
  if (!HasLayout()) MakeChildren(nullptr, 0, window_->Client());
  for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->Changed(Property::kTab);
  LinkLabels();
  SetTabOrder();
}

void FormWindow::DropViewsOfGoneControls() {
  const std::vector<Control*>& present = form_.Controls();
  std::erase_if(views_, [this, &present](const std::unique_ptr<WidgetView>& view) {
    if (std::find(present.begin(), present.end(), &view->Model()) != present.end()) return false;
    if (view->Widget() != nullptr) view->Widget()->deleteLater();
    if (statusBar_ == view.get()) statusBar_ = nullptr;
    return true;
  });
}

QButtonGroup& FormWindow::OptionGroup(const Control* container) {
  std::unique_ptr<QButtonGroup>& group = optionGroups_[container];
  if (!group) group = std::make_unique<QButtonGroup>();
  return *group;
}

QRect FormWindow::AreaFor(const WidgetView& view) const {
  const Control* container = view.Model().Container();
  // Not the page's own rectangle: while hidden it lags behind.
  if (container != nullptr) return static_cast<WidgetView*>(container->View())->Widget()->rect();
  QRect area = window_->Client().rect();
  if (statusBar_ != nullptr && statusBar_ != &view && statusBar_->Model().Visible()) {
    area.setBottom(area.bottom() - statusBar_->Widget()->height());
  }
  return area;
}

}  // namespace tagsmith
