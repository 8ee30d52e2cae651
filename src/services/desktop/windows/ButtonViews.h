#pragma once

#include <QAbstractButton>

#include "services/Buttons.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

/// A push button, or a flat tool button where the control has the size of one.
class CommandButtonView final : public ViewOf<CommandButton> {
 public:
  CommandButtonView(CommandButton& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;
  QString AccessibleName() const override;
  bool IsToolButton() const;
  void UpdateFace();

  QAbstractButton* button_;
};

class CheckBoxView final : public ViewOf<CheckBox> {
 public:
  CheckBoxView(CheckBox& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;

  QAbstractButton* box_;
};

class OptionButtonView final : public ViewOf<OptionButton> {
 public:
  OptionButtonView(OptionButton& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;
  static void ShareTabStop(const QButtonGroup& group);

  QAbstractButton* button_;
};

}  // namespace tagsmith
