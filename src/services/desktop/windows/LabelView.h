#pragma once

#include <QLabel>

#include "services/Graphics.h"
#include "services/desktop/windows/WidgetView.h"

class QMouseEvent;

namespace tagsmith {

class LabelView final : public ViewOf<Label> {
 public:
  LabelView(Label& control, ViewHost& host, QWidget& parent);

  /// Makes the caption's access key lead to `field`; null for none.
  void LinkTo(QWidget* field);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Update(Property property) override;
  void Resized() override;
  void UpdateText();
  void UpdateColour();
  bool IsHandle() const;
  bool PassMouse(const QMouseEvent& event);

  QLabel* label_;
  int captionWidth_ = 0;  // What the first caption takes in a layout.
};

}  // namespace tagsmith
