#include "services/desktop/windows/GridView.h"

#include <QAbstractTableModel>
#include <QHeaderView>

#include "services/desktop/system/TextConversion.h"
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
  void TextsChanged() {
    emit dataChanged(index(0, 0), index(rowCount({}) - 1, columnCount({}) - 1));
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

}  // namespace

GridView::GridView(MSFlexGrid& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      table_(new QTableView(&parent)),
      cells_(new GridCells(control, table_)) {
  table_->setModel(cells_);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setTabKeyNavigation(false);
  table_->horizontalHeader()->hide();
  table_->verticalHeader()->hide();
  const int width = host.Scale().ToPixels(kColumnWidth);
  const int height = host.Scale().ToPixels(kRowHeight);
  table_->horizontalHeader()->setDefaultSectionSize(width);
  table_->verticalHeader()->setDefaultSectionSize(height);
  table_->setMinimumSize(kColumnsShown * width, kRowsShown * height);
  ShowCurrent();
  Adopt(table_);
  connect(table_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& cell) {
            if (!showing_) Take(cell);
          });
  connect(table_, &QTableView::pressed, this, [this](const QModelIndex& cell) {
    if (!everTaken_) Take(cell);
  });
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
  if (property == Property::kText) cells_->TextsChanged();
  showing_ = false;
  ShowCurrent();
}

}  // namespace tagsmith
