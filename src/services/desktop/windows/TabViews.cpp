#include "services/desktop/windows/TabViews.h"

#include <QSignalBlocker>
#include <algorithm>

#include "services/Form.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {

TabView::TabView(SSTab& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), panel_(new TabPanel(control.Side(), control.Tabs(), parent)) {
  for (int i = 0; i < control.Tabs(); ++i) panel_->Strip().addTab(QString());
  UpdateCaptions();
  panel_->Strip().setCurrentIndex(control.Tab());
  Adopt(panel_, &panel_->Strip());
  connect(&panel_->Strip(), &QTabBar::currentChanged, this, [this](int tab) {
    Host().Act([this, tab] {
      model_.Select(tab);
      ShowTab();
    });
  });
}

QWidget* TabView::ChildParent(int page) { return &panel_->Page(page); }

void TabView::Update(Property property) {
  if (property == Property::kCaption) UpdateCaptions();
  if (property == Property::kTab) ShowTab();
}

void TabView::UpdateCaptions() {
  for (int i = 0; i < model_.Tabs(); ++i) {
    const std::string& caption = model_.TabCaption(i);
    const QString text = model_.PlainCaptions() ? WithoutAccessKey(caption) : ToQString(caption);
    const QString full = model_.PlainCaptions() ? ToQString(caption) : QString();
    if (panel_->Strip().tabText(i) != text) panel_->Strip().SetCaption(i, text, full);
  }
}

void TabView::ShowTab() {
  const QSignalBlocker quiet(panel_->Strip());
  panel_->Strip().setCurrentIndex(model_.Tab());
  Host().MakePage(model_, model_.Tab());
  panel_->ShowPage(model_.Tab());
  panel_->update();
}

StatusBarView::StatusBarView(StatusBar& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host), bar_(new StatusLine(&parent)) {
  bar_->setSizeGripEnabled(control.Owner().Border() == BorderStyle::kSizable);
  Update(Property::kText);
  Adopt(bar_);
}

void StatusBarView::Update(Property property) {
  if (property == Property::kText) bar_->SetText(ToQString(model_.SimpleText()));
}

QRect StatusBarView::WantedPlace() const {
  const QRect client = bar_->parentWidget()->rect();
  const int height = std::max(Host().Scale().ToPixels(model_.Height()), bar_->LeastHeight());
  return {0, client.height() - height, client.width(), height};
}

}  // namespace tagsmith
