#include "services/desktop/windows/EntryModel.h"

#include <utility>

namespace tagsmith {

EntryModel::EntryModel(EntrySource source, QObject* parent)
    : QAbstractListModel(parent), source_(std::move(source)) {}

void EntryModel::Reset() {
  beginResetModel();
  endResetModel();
}

int EntryModel::rowCount(const QModelIndex& parent) const {
  return source_.count && !parent.isValid() ? source_.count() : 0;
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
  if (!source_.count || index.row() >= source_.count()) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return source_.text(index.row());
    case Qt::DecorationRole:
      return source_.icon ? QVariant(source_.icon(index.row())) : QVariant();
    case kDepthRole:
      return source_.depth ? source_.depth(index.row()) : 0;
    default:
      return {};
  }
}

}  // namespace tagsmith
