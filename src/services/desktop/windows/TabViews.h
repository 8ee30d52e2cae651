#pragma once

#include "services/SSTab.h"
#include "services/desktop/windows/StatusLine.h"
#include "services/desktop/windows/TabPanel.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

/// The views of the controls on a page are made when it is first shown.
class TabView final : public ViewOf<SSTab> {
 public:
  TabView(SSTab& control, ViewHost& host, QWidget& parent);

  QWidget* ChildParent(int page) override;

 private:
  void Update(Property property) override;
  void UpdateCaptions();
  void ShowTab();

  TabPanel* panel_;
};

/// Docked at the lower edge of the client area, whatever its bounds but for its height.
class StatusBarView final : public ViewOf<StatusBar> {
 public:
  StatusBarView(StatusBar& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;
  QRect WantedPlace() const override;

  StatusLine* bar_;
};

}  // namespace tagsmith
