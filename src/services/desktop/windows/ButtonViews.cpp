#include "services/desktop/windows/ButtonViews.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <algorithm>

#include "services/Form.h"
#include "services/desktop/system/Icons.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

// A button up to this width is one of a toolbar.
constexpr Twips kToolButtonWidth = 450;
constexpr Twips kIconSize = 240;
constexpr Twips kToolButtonRim = 60;

constexpr QLatin1String kNamePrefix("cmd");

QAbstractButton* MakeButton(bool toolButton, bool isDefault, QWidget& parent) {
  if (toolButton) {
    auto* button = new QToolButton(&parent);
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    return button;
  }
  auto* button = new QPushButton(&parent);
  button->setAutoDefault(true);  // Enter presses the button that has the focus.
  button->setDefault(isDefault);
  return button;
}

}  // namespace

CommandButtonView::CommandButtonView(CommandButton& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      button_(MakeButton(IsToolButton(), control.Owner().DefaultButton() == &control, parent)) {
  UpdateFace();
  Adopt(button_);
  connect(button_, &QAbstractButton::clicked, this,
          [this] { Host().Act([this] { model_.Click(); }); });
}

bool CommandButtonView::IsToolButton() const {
  return model_.Owner().GetArrangement() == nullptr && model_.Width() <= kToolButtonWidth;
}

// A picture says nothing to a screen reader: the tool tip does, or else the button's own name.
QString CommandButtonView::AccessibleName() const {
  if (model_.PictureName().empty() || !model_.Caption().empty()) {
    return WithoutMnemonic(model_.Caption());
  }
  if (!model_.ToolTipText().empty()) return ToQString(model_.ToolTipText());
  const QString name = ToQString(model_.Name());
  return name.startsWith(kNamePrefix) ? name.mid(kNamePrefix.size()) : name;
}

void CommandButtonView::UpdateFace() {
  button_->setText(ToQString(model_.Caption()));
  const QIcon icon =
      model_.PictureName().empty() ? QIcon() : ButtonIcon(ToQString(model_.PictureName()));
  button_->setIcon(icon);
  const TwipsScale& scale = Host().Scale();
  int side = scale.ToPixels(kIconSize);
  if (auto* toolButton = qobject_cast<QToolButton*>(button_)) {
    toolButton->setToolButtonStyle(icon.isNull() ? Qt::ToolButtonTextOnly : Qt::ToolButtonIconOnly);
    side = std::min(side, scale.ToPixels(model_.Height() - kToolButtonRim));
  }
  button_->setIconSize({side, side});
}

void CommandButtonView::Update(Property property) {
  if (property != Property::kCaption && property != Property::kPicture) return;
  UpdateFace();
  UpdateAccessibleName();
}

CheckBoxView::CheckBoxView(CheckBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), box_(new QCheckBox(ToQString(control.Caption()), &parent)) {
  box_->setChecked(control.Value() != 0);
  Adopt(box_);
  connect(box_, &QAbstractButton::clicked, this, [this] {
    Host().Act([this] {
      model_.Click();
      Update(Property::kValue);
    });
  });
}

void CheckBoxView::Update(Property property) {
  if (property == Property::kValue) box_->setChecked(model_.Value() != 0);
}

OptionButtonView::OptionButtonView(OptionButton& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), button_(new QRadioButton(ToQString(control.Caption()), &parent)) {
  host.OptionGroup(control.Container()).addButton(button_);
  Adopt(button_);
  Update(Property::kValue);
  connect(button_, &QAbstractButton::clicked, this, [this] {
    Host().Act([this] {
      model_.Click();
      Update(Property::kValue);
    });
  });
}

void OptionButtonView::Update(Property property) {
  if (property != Property::kValue) return;
  // An exclusive group does not let its only checked button go.
  QButtonGroup& group = Host().OptionGroup(model_.Container());
  group.setExclusive(model_.Value());
  button_->setChecked(model_.Value());
  group.setExclusive(true);
  ShareTabStop(group);
}

// Tab goes to the chosen one; to the first where none is.
void OptionButtonView::ShareTabStop(const QButtonGroup& group) {
  const QAbstractButton* chosen = group.checkedButton();
  for (QAbstractButton* button : group.buttons()) {
    const bool takesTab = chosen == nullptr || button == chosen;
    button->setFocusPolicy(takesTab ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

}  // namespace tagsmith
