#include "services/desktop/windows/GridView.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStyledItemDelegate>

#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/Colours.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {

/// The grid's texts as a Qt model, without a copy of them.
class GridCells final : public QAbstractTableModel {
 public:
  GridCells(const MSFlexGrid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(&grid) {}

  void Reset() {
    beginResetModel();
    endResetModel();
  }
  void Forget() { grid_ = nullptr; }
  void TextChanged() {
    const QModelIndex cell = index(grid_->Row(), grid_->Col());
    emit dataChanged(cell, cell);
  }

  int rowCount(const QModelIndex& parent) const override {
    return grid_ == nullptr || parent.isValid() ? 0 : grid_->Rows();
  }
  int columnCount(const QModelIndex& parent) const override {
    return grid_ == nullptr || parent.isValid() ? 0 : grid_->Cols();
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || !hasIndex(index.row(), index.column())) return {};
    return ToQString(grid_->TextAt(index.row(), index.column()));
  }

 private:
  const MSFlexGrid* grid_;
};

namespace {

constexpr Twips kColumnWidth = 960;
constexpr Twips kRowHeight = 315;
constexpr int kColumnsShown = 5;
constexpr int kRowsShown = 8;
/// More than a cell is wide; laying out a long text costs time at each paint.
constexpr qsizetype kLettersShown = 200;

/// A table in which letters do not look for a cell: the user means to type a text.
class PlainTable final : public QTableView {
 public:
  using QTableView::QTableView;
  void keyboardSearch(const QString& /*letters*/) override {}
};

/// Draws the current cell as one that is selected and has the keyboard, whoever has it, and of a
/// text the first line.
class CellPainter final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& value, const QLocale& /*locale*/) const override {
    static const QRegularExpression lineEnd(QStringLiteral("[\r\n]"));
    const QString text = value.toString().left(kLettersShown);
    const qsizetype end = text.indexOf(lineEnd);
    return end < 0 ? text : text.left(end) + u'\u2026';
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto* view = qobject_cast<const QAbstractItemView*>(option->widget);
    const bool isCurrent = view != nullptr && view->currentIndex() == index;
    option->state.setFlag(QStyle::State_Selected, isCurrent);
    if (isCurrent) option->state |= QStyle::State_Active;
  }
};

// The style's own lines cannot be seen on a dark ground.
QString GridLines(const QPalette& palette) {
  const QColor rim = RimColour(palette);
  return QStringLiteral("QTableView { gridline-color: rgba(%1, %2, %3, %4) }")
      .arg(rim.red())
      .arg(rim.green())
      .arg(rim.blue())
      .arg(rim.alpha());
}

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Up || key == Qt::Key_Right || key == Qt::Key_Down;
}

}  // namespace

GridView::GridView(MSFlexGrid& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      table_(new PlainTable(&parent)),
      cells_(new GridCells(control, table_)) {
  table_->setModel(cells_);
  table_->setItemDelegate(new CellPainter(table_));
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setTabKeyNavigation(false);
  table_->setWordWrap(false);
  table_->setStyleSheet(GridLines(table_->palette()));
  table_->horizontalHeader()->hide();
  table_->verticalHeader()->hide();
  const int width = host.Scale().ToPixels(kColumnWidth);
  const int height = host.Scale().ToPixels(kRowHeight);
  table_->horizontalHeader()->setDefaultSectionSize(width);
  table_->verticalHeader()->setDefaultSectionSize(height);
  const int rim = 2 * table_->frameWidth();
  table_->setMinimumSize(kColumnsShown * width + rim, kRowsShown * height + rim);
  ShowCurrent();
  Adopt(table_);
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& cell) {
            if (!showing_) Take(cell);
          });
  connect(table_, &QTableView::pressed, this, [this] { TakeFirst(); });
  afterKey_.setSingleShot(true);
  connect(&afterKey_, &QTimer::timeout, this, [this] { TakeFirst(); });
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == table_ && event->type() == QEvent::KeyPress && !everTaken_ &&
      IsArrow(static_cast<QKeyEvent*>(event)->key())) {
    afterKey_.start();
  }
  return WidgetView::eventFilter(watched, event);
}

void GridView::TakeFirst() {
  if (!everTaken_) Take(table_->currentIndex());
}

void GridView::Take(const QModelIndex& cell) {
  if (!cell.isValid()) return;
  everTaken_ = true;
  Host().Act([this, row = cell.row(), column = cell.column()] { model_.Select(row, column); });
}

GridView::~GridView() {
  if (Widget() != nullptr) cells_->Forget();
}

void GridView::ShowCurrent() {
  showing_ = true;
  table_->setCurrentIndex(cells_->index(model_.Row(), model_.Col()));
  showing_ = false;
}

void GridView::Update(Property property) {
  showing_ = true;
  if (property == Property::kLimits) cells_->Reset();
  if (property == Property::kText) cells_->TextChanged();
  showing_ = false;
  ShowCurrent();
}

}  // namespace tagsmith
