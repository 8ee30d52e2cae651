#include "services/desktop/windows/MenuView.h"

#include <QApplication>
#include <QKeySequence>
#include <QMenuBar>

#include "services/Form.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

MenuView::MenuView(Menu& menu, ViewHost& host, QMenuBar& bar)
    : model_(menu), host_(host), action_(nullptr) {
  Make(bar);
  if (QMenu* dropDown = action_->menu()) {
    connect(
        dropDown, &QMenu::aboutToHide, this,
        [this, menuBar = &bar] {
          const bool onward = menuBar->activeAction() != action_;  // To one that has no entries.
          if (menuBar->hasFocus() && !onward && QApplication::activePopupWidget() == nullptr) {
            LeaveMenuBar();
          }
        },
        Qt::QueuedConnection);
  }
}

// One Escape leads from a menu back into the text. The menu bar would keep the keyboard and, left
// and entered again by an access key, not know any more where it had it from.
void MenuView::LeaveMenuBar() {
  const Control* control = model_.Owner().ActiveControl();
  if (control != nullptr && control->View() != nullptr) {
    control->View()->Changed(Property::kFocus);
  } else {
    host_.DropFocus();
  }
}

MenuView::MenuView(Menu& menu, ViewHost& host, QMenu& parent)
    : model_(menu), host_(host), action_(nullptr) {
  Make(parent);
}

template <class Parent>
void MenuView::Make(Parent& parent) {
  if (model_.Entries().empty()) {
    action_ = parent.addAction(QString());
    connect(action_, &QAction::triggered, this, [this] { Click(); });
  } else {
    QMenu* dropDown = parent.addMenu(QString());
    action_ = dropDown->menuAction();
    MakeEntries(*dropDown);
  }
  Start();
}

void MenuView::MakeEntries(QMenu& menu) {
  for (Menu* entry : model_.Entries()) {
    entries_.push_back(std::make_unique<MenuView>(*entry, host_, menu));
  }
  connect(&menu, &QMenu::aboutToShow, this, [this] { Click(); });
}

void MenuView::Start() {
  action_->setObjectName(ObjectNameOf(model_));
  action_->setMenuRole(QAction::NoRole);
  if (!model_.Shortcut().empty()) {
    action_->setShortcut(
        QKeySequence::fromString(ToQString(model_.Shortcut()), QKeySequence::PortableText));
    action_->setAutoRepeat(false);
  }
  Changed(Property::kCaption);
  Changed(Property::kEnabled);
  model_.AttachView(this);
}

QString MenuView::Text() const {
  return model_.PlainCaption() ? WithoutAccessKey(model_.Caption()) : ToQString(model_.Caption());
}

void MenuView::Click() {
  host_.Act([this] { model_.Click(); });
}

void MenuView::Changed(Property property) {
  switch (property) {
    case Property::kCaption:
      action_->setSeparator(model_.IsSeparator());
      action_->setText(model_.IsSeparator() ? QString() : Text());
      break;
    case Property::kEnabled:
    case Property::kVisible:
      action_->setEnabled(model_.Enabled());
      action_->setVisible(model_.Visible());
      break;
    default:
      break;
  }
}

}  // namespace tagsmith
