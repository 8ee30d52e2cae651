#pragma once

#include <QAbstractListModel>
#include <QIcon>
#include <QString>
#include <functional>

namespace tagsmith {

/// Where the entries of a list come from; asked for what is shown only.
struct EntrySource {
  std::function<int()> count;
  std::function<QString(int row)> text;
  std::function<QIcon(int row)> icon{};  ///< Empty for a list without icons.
  std::function<int(int row)> depth{};   ///< By how many steps a row is indented; empty for none.
};

/// The entries of a control as a Qt model, without a copy of them.
class EntryModel final : public QAbstractListModel {
 public:
  static constexpr int kDepthRole = Qt::UserRole;

  EntryModel(EntrySource source, QObject* parent);

  /// The entries have changed.
  void Reset();
  /// The source has gone: the list is empty from now on.
  void Forget() { source_ = {}; }

  int rowCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  EntrySource source_;
};

}  // namespace tagsmith
