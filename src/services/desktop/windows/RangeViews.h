#pragma once

#include <QProgressBar>
#include <QSlider>

#include "services/Ranges.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

class SliderView final : public ViewOf<Slider> {
 public:
  SliderView(Slider& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;
  QString AccessibleName() const override;

  QSlider* slider_;
  bool showing_ = false;
};

class ProgressBarView final : public ViewOf<ProgressBar> {
 public:
  ProgressBarView(ProgressBar& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;

  QProgressBar* bar_;
};

}  // namespace tagsmith
