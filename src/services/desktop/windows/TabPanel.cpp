#include "services/desktop/windows/TabPanel.h"

#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>

#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {
namespace {

constexpr int kTabPadding = 8;  // Above and below a tab's text, together.
constexpr int kTabMargin = 8;   // Beside a tab's text, together.
constexpr int kLeastTab = 24;   // How far a tab can be squeezed.

QTabBar::Shape ShapeFor(TabSide side) {
  switch (side) {
    case TabSide::kLeft:
      return QTabBar::RoundedWest;
    case TabSide::kBottom:
      return QTabBar::RoundedSouth;
    default:
      return QTabBar::RoundedNorth;
  }
}

}  // namespace

TabStrip::TabStrip(TabSide side, QWidget* parent) : QTabBar(parent), side_(side) {
  setShape(ShapeFor(side));
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideMiddle);
  setExpanding(side != TabSide::kTop);
  setDrawBase(false);
}

int TabStrip::Thickness() const { return fontMetrics().height() + kTabPadding; }

QSize TabStrip::tabSizeHint(int index) const {
  QSize hint = QTabBar::tabSizeHint(index);
  const int share = (IsUpright() ? height() : width()) / std::max(count(), 1);
  if (IsUpright()) return {Thickness(), share};
  if (side_ == TabSide::kBottom) hint.setWidth(share);
  return {hint.width(), std::min(Thickness(), height())};
}

QSize TabStrip::minimumTabSizeHint(int index) const {
  const QSize hint = tabSizeHint(index);
  return IsUpright() ? QSize(hint.width(), std::min(hint.height(), kLeastTab))
                     : QSize(std::min(hint.width(), kLeastTab), hint.height());
}

void TabStrip::SetCaption(int index, const QString& caption, const QString& full) {
  setTabData(index, full);
  setTabText(index, caption);
}

QString TabStrip::ShownCaption(int index) const {
  const QRect place = tabRect(index);
  const int room = (IsUpright() ? place.height() : place.width()) - kTabMargin;
  return fontMetrics().elidedText(tabText(index), elideMode(), room, Qt::TextShowMnemonic);
}

void TabStrip::tabLayoutChange() {
  for (int i = 0; i < count(); ++i) {
    const bool isCut = ShownCaption(i) != tabText(i);
    setTabToolTip(i, isCut ? PlainToolTip(tabData(i).toString()) : QString());
  }
}

void TabStrip::initStyleOption(QStyleOptionTab* option, int tabIndex) const {
  QTabBar::initStyleOption(option, tabIndex);
  if (side_ != TabSide::kTop) option->text = ShownCaption(tabIndex);
}

// Styles leave wide margins beside a tab's text and cut it there; in a squeezed tab the text has
// them.
void TabStrip::PaintTab(QStylePainter& painter, int index) const {
  QStyleOptionTab tab;
  initStyleOption(&tab, index);
  painter.drawControl(QStyle::CE_TabBarTabShape, tab);
  const int margin = style()->pixelMetric(QStyle::PM_TabBarTabHSpace, &tab, this);
  const int gain = side_ == TabSide::kTop ? 0 : std::max(0, (margin - kTabMargin) / 2);
  tab.rect += IsUpright() ? QMargins(0, gain, 0, gain) : QMargins(gain, 0, gain, 0);
  painter.drawControl(QStyle::CE_TabBarTabLabel, tab);
}

// The present tab lies above its neighbours.
void TabStrip::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  for (int i = 0; i < count(); ++i) {
    if (i != currentIndex()) PaintTab(painter, i);
  }
  if (currentIndex() >= 0) PaintTab(painter, currentIndex());
}

void TabStrip::wheelEvent(QWheelEvent* event) { event->ignore(); }

TabPanel::TabPanel(TabSide side, int tabs, QWidget& parent)
    : QWidget(&parent),
      side_(side),
      strip_(new TabStrip(side, this)),
      pages_(static_cast<std::size_t>(tabs), nullptr) {}

QWidget& TabPanel::Page(int index) {
  QWidget*& page = pages_.at(static_cast<std::size_t>(index));
  if (page == nullptr) {
    page = new QWidget(this);
    page->setGeometry(rect());
    strip_->raise();
  }
  return *page;
}

void TabPanel::ShowPage(int index) {
  for (QWidget* page : pages_) {
    if (page != nullptr && page != &Page(index)) page->hide();
  }
  Page(index).show();
}

QSize TabPanel::sizeHint() const {
  const int side = strip_->Thickness();
  return {side * 16, side * 8};
}

bool TabPanel::HasFrame() const {
  return side_ == TabSide::kLeft || height() > 2 * strip_->Thickness();
}

QRect TabPanel::FrameRect() const {
  const int overlap = style()->pixelMetric(QStyle::PM_TabBarBaseOverlap, nullptr, strip_);
  const int strip = strip_->Thickness() - overlap;
  switch (side_) {
    case TabSide::kLeft:
      return rect().adjusted(strip, 0, 0, 0);
    case TabSide::kBottom:
      return rect().adjusted(0, 0, 0, -strip);
    default:
      return rect().adjusted(0, strip, 0, 0);
  }
}

void TabPanel::resizeEvent(QResizeEvent* /*event*/) {
  const int thickness = HasFrame() ? strip_->Thickness() : height();
  QRect place = rect();
  if (side_ == TabSide::kLeft) place.setWidth(thickness);
  if (side_ == TabSide::kTop) place.setHeight(thickness);
  if (side_ == TabSide::kBottom) place.setTop(height() - thickness);
  strip_->setGeometry(place);
  for (QWidget* page : pages_) {
    if (page != nullptr) page->setGeometry(rect());
  }
}

void TabPanel::paintEvent(QPaintEvent* /*event*/) {
  if (!HasFrame()) return;
  QStyleOptionTabWidgetFrame frame;
  frame.initFrom(this);
  frame.shape = strip_->shape();
  frame.rect = FrameRect();
  frame.tabBarSize = strip_->size();
  frame.tabBarRect = strip_->geometry();
  frame.selectedTabRect = strip_->tabRect(strip_->currentIndex());
  frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
  QStylePainter(this).drawPrimitive(QStyle::PE_FrameTabWidget, frame);
}

}  // namespace tagsmith
