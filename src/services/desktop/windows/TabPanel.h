#pragma once

#include <QTabBar>
#include <QWidget>
#include <vector>

#include "services/SSTab.h"

class QStylePainter;

namespace tagsmith {

/// The tabs of a panel: on one row, no thicker than their text needs, squeezed and cut in the
/// middle where there is no room for all. At the left and at the bottom the tabs share its length.
class TabStrip final : public QTabBar {
 public:
  TabStrip(TabSide side, QWidget* parent);

  int Thickness() const;
  /// `full`, unless empty, is the tool tip while there is no room for the whole caption.
  void SetCaption(int index, const QString& caption, const QString& full);

 protected:
  QSize tabSizeHint(int index) const override;
  QSize minimumTabSizeHint(int index) const override;
  void initStyleOption(QStyleOptionTab* option, int tabIndex) const override;
  void paintEvent(QPaintEvent* event) override;
  void tabLayoutChange() override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  bool IsUpright() const { return side_ == TabSide::kLeft; }
  /// Its caption as far as there is room for it.
  QString ShownCaption(int index) const;
  void PaintTab(QStylePainter& painter, int index) const;

  TabSide side_;
};

/// Tabs with a page behind each. The pages cover the panel as a whole, the part under the strip
/// included, so that places count from its top left corner.
class TabPanel final : public QWidget {
 public:
  TabPanel(TabSide side, int tabs, QWidget& parent);

  TabStrip& Strip() const { return *strip_; }
  /// Made on first use.
  QWidget& Page(int index);
  void ShowPage(int index);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  /// The frame around the pages, without the strip.
  QRect FrameRect() const;
  bool HasFrame() const;

  TabSide side_;
  TabStrip* strip_;
  std::vector<QWidget*> pages_;
};

}  // namespace tagsmith
