#include "services/desktop/windows/ArrangementLayout.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstddef>
#include <utility>

#include "services/Control.h"
#include "services/Ranges.h"
#include "services/TextBox.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {
namespace {

using Kind = Arrangement::Kind;

constexpr Twips kGap = 105;
constexpr Twips kMargin = 165;
constexpr Twips kButtonWidth = 1215;
constexpr int kDivider = 1;  // Pixels.

bool IsUpright(const Control& control) {
  return control.Kind() == ControlKind::kSlider &&
         static_cast<const Slider&>(control).GetOrientation() == Orientation::kVertical;
}

bool IsMultiLine(const Control& control) {
  return control.Kind() == ControlKind::kTextBox &&
         static_cast<const TextBox&>(control).MultiLine();
}

bool WidensItself(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kComboBox:
    case ControlKind::kDirListBox:
    case ControlKind::kDriveListBox:
    case ControlKind::kFileListBox:
    case ControlKind::kListBox:
    case ControlKind::kMSFlexGrid:
    case ControlKind::kProgressBar:
    case ControlKind::kRichTextBox:
    case ControlKind::kTextBox:
      return true;
    case ControlKind::kSlider:
      return !IsUpright(control);
    default:
      return false;
  }
}

bool HeightensItself(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kDirListBox:
    case ControlKind::kFileListBox:
    case ControlKind::kListBox:
    case ControlKind::kMSFlexGrid:
    case ControlKind::kRichTextBox:
      return true;
    default:
      return IsMultiLine(control) || IsUpright(control);
  }
}

bool AnyLeaf(const Arrangement& node, bool (*is)(const Control&)) {
  if (node.kind == Kind::kControl) return is(*node.control);
  return std::any_of(node.children.begin(), node.children.end(),
                     [is](const Arrangement& child) { return AnyLeaf(child, is); });
}

bool Widens(const Arrangement& node) {
  return node.kind == Kind::kButtonRow || node.kind == Kind::kGroup || AnyLeaf(node, WidensItself);
}

bool Heightens(const Arrangement& node) { return AnyLeaf(node, HeightensItself); }

// Several things above each other.
bool IsPile(const Arrangement& node) {
  return node.kind == Kind::kColumn || node.kind == Kind::kGrid || node.kind == Kind::kGroup;
}

bool IsKind(const Arrangement& node, ControlKind kind) {
  return node.kind == Kind::kControl && node.control->Kind() == kind;
}

void Divide(QWidget& line, bool upright) {
  upright ? line.setFixedWidth(kDivider) : line.setFixedHeight(kDivider);
}

// Where a leaf stands in a cell that is larger than it.
Qt::Alignment AlignmentOf(const Arrangement& node, bool besideTall) {
  if (node.kind != Kind::kControl || IsKind(node, ControlKind::kLine)) return {};
  Qt::Alignment alignment;
  if (!WidensItself(*node.control) && node.control->Kind() != ControlKind::kLabel) {
    alignment |= Qt::AlignLeft;
  }
  if (!HeightensItself(*node.control)) alignment |= besideTall ? Qt::AlignTop : Qt::AlignVCenter;
  return alignment;
}

}  // namespace

ArrangementLayout::ArrangementLayout(const TwipsScale& scale, Maker make)
    : scale_(scale), make_(std::move(make)) {}

void ArrangementLayout::Realise(const Arrangement& arrangement, QWidget& window) const {
  auto* root = new QVBoxLayout(&window);
  const int margin = scale_.ToPixels(kMargin);
  root->setContentsMargins(margin, margin, margin, margin);
  root->setSpacing(scale_.ToPixels(kGap));
  root->setSizeConstraint(QLayout::SetNoConstraint);
  Append(*root, arrangement, window, 1, {});
}

QLayout* ArrangementLayout::MakeLayout(const Arrangement& node, QWidget& parent) const {
  switch (node.kind) {
    case Kind::kRow:
      return MakeRow(node, parent);
    case Kind::kGrid:
      return MakeGrid(node, parent);
    case Kind::kButtonRow:
      return MakeButtonRow(node, parent);
    default:
      return MakeColumn(node, parent);
  }
}

QLayout* ArrangementLayout::MakeRow(const Arrangement& node, QWidget& parent) const {
  auto* row = new QHBoxLayout;
  row->setSpacing(scale_.ToPixels(kGap));
  const auto& cells = node.children;
  const bool tall = Heightens(node) || std::any_of(cells.begin(), cells.end(), IsPile);
  for (const Arrangement& child : cells) {
    Append(*row, child, parent, Widens(child) ? 1 : 0, AlignmentOf(child, tall));
  }
  if (!Widens(node)) row->addStretch(1);
  return row;
}

QLayout* ArrangementLayout::MakeColumn(const Arrangement& node, QWidget& parent) const {
  auto* column = new QVBoxLayout;
  column->setSpacing(scale_.ToPixels(kGap));
  for (const Arrangement& child : node.children) {
    Qt::Alignment alignment = AlignmentOf(child, /*besideTall=*/false);
    // Buttons above each other are of one width.
    if (IsKind(child, ControlKind::kCommandButton)) alignment = {};
    Append(*column, child, parent, Heightens(child) ? 1 : 0, alignment);
  }
  if (!Heightens(node)) column->addStretch(1);
  return column;
}

QLayout* ArrangementLayout::MakeGrid(const Arrangement& node, QWidget& parent) const {
  auto* grid = new QGridLayout;
  grid->setSpacing(scale_.ToPixels(kGap));
  const int columns = std::max(node.columns, 1);
  const auto& cells = node.children;
  int rows = 0;
  for (auto first = cells.begin(); first != cells.end(); ++rows) {
    const auto last = first + std::min<std::ptrdiff_t>(columns, cells.end() - first);
    const bool stretches = std::any_of(first, last, Heightens);
    if (stretches) grid->setRowStretch(rows, 1);
    const bool tall = stretches || std::any_of(first, last, IsPile);
    for (int column = 0; first != last; ++first, ++column) {
      if (Widens(*first)) grid->setColumnStretch(column, 1);
      AppendToGrid(*grid, *first, parent, rows, column, tall);
    }
  }
  if (!Heightens(node)) grid->setRowStretch(rows, 1);
  return grid;
}

void ArrangementLayout::AppendToGrid(QGridLayout& grid, const Arrangement& node, QWidget& parent,
                                     int row, int column, bool besideTall) const {
  if (QWidget* widget = MakeWidget(node, parent)) {
    if (IsKind(node, ControlKind::kLine)) Divide(*widget, /*upright=*/false);
    grid.addWidget(widget, row, column, AlignmentOf(node, besideTall));
  } else if (node.kind != Kind::kControl) {
    grid.addLayout(MakeLayout(node, parent), row, column);
  }
}

QLayout* ArrangementLayout::MakeButtonRow(const Arrangement& node, QWidget& parent) const {
  auto* row = new QHBoxLayout;
  row->setSpacing(scale_.ToPixels(kGap));
  row->addStretch(1);
  std::vector<QWidget*> buttons;
  int width = scale_.ToPixels(kButtonWidth);
  for (const Arrangement& child : node.children) {
    QWidget* button = MakeWidget(child, parent);
    if (button == nullptr) continue;
    row->addWidget(button);
    buttons.push_back(button);
    width = std::max(width, button->minimumWidth());
  }
  for (QWidget* button : buttons) button->setMinimumWidth(width);
  return row;
}

// A leaf's or group's widget, null for what is a layout only.
QWidget* ArrangementLayout::MakeWidget(const Arrangement& node, QWidget& parent) const {
  if (node.kind != Kind::kControl && node.kind != Kind::kGroup) return nullptr;
  const WidgetView* view = make_(*node.control, parent);
  if (view == nullptr) return nullptr;
  if (auto* button = qobject_cast<QPushButton*>(view->Widget())) {
    // Some styles leave no air around a large text.
    const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    button->setMinimumWidth(std::max(button->sizeHint().width(), text + 2 * scale_.ToPixels(kGap)));
  }
  if (node.kind == Kind::kGroup) {
    QLayout* inner = MakeColumn(node, *view->Widget());
    const int gap = scale_.ToPixels(kGap);
    inner->setContentsMargins(gap, gap, gap, gap);
    view->Widget()->setLayout(inner);
  }
  return view->Widget();
}

void ArrangementLayout::Append(QBoxLayout& layout, const Arrangement& node, QWidget& parent,
                               int stretch, Qt::Alignment alignment) const {
  if (QWidget* widget = MakeWidget(node, parent)) {
    const bool inRow = layout.direction() == QBoxLayout::LeftToRight;
    if (IsKind(node, ControlKind::kLine)) Divide(*widget, inRow);
    layout.addWidget(widget, stretch, alignment);
  } else if (node.kind != Kind::kControl) {
    layout.addLayout(MakeLayout(node, parent), stretch);
  }
}

}  // namespace tagsmith
