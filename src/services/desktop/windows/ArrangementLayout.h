#pragma once

#include <QWidget>
#include <functional>

#include "services/Arrangement.h"
#include "services/desktop/windows/TwipsScale.h"

class QBoxLayout;
class QGridLayout;
class QLayout;

namespace tagsmith {

class WidgetView;

/// Realises an arrangement with real layouts. Fields, lists and grids take the room that is left,
/// labels and buttons keep their size.
class ArrangementLayout {
 public:
  /// Makes the view of a control, its widget a child of `parent`; called in the order of the
  /// leaves.
  using Maker = std::function<WidgetView*(Control& control, QWidget& parent)>;

  ArrangementLayout(const TwipsScale& scale, Maker make);

  /// Gives `window` its layout.
  void Realise(const Arrangement& arrangement, QWidget& window) const;

 private:
  QLayout* MakeLayout(const Arrangement& node, QWidget& parent) const;
  QLayout* MakeRow(const Arrangement& node, QWidget& parent) const;
  QLayout* MakeColumn(const Arrangement& node, QWidget& parent) const;
  QLayout* MakeGrid(const Arrangement& node, QWidget& parent) const;
  QLayout* MakeButtonRow(const Arrangement& node, QWidget& parent) const;
  QWidget* MakeWidget(const Arrangement& node, QWidget& parent) const;
  void Append(QBoxLayout& layout, const Arrangement& node, QWidget& parent, int stretch,
              Qt::Alignment alignment) const;
  void AppendToGrid(QGridLayout& grid, const Arrangement& node, QWidget& parent, int row,
                    int column, bool besideTall) const;

  TwipsScale scale_;
  Maker make_;
};

}  // namespace tagsmith
