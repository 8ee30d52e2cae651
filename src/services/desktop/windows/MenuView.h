#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <memory>
#include <vector>

#include "services/Menu.h"
#include "services/WindowSystem.h"
#include "services/desktop/windows/ViewHost.h"

class QMenuBar;

namespace tagsmith {

/// A menu or menu entry, with the entries below it.
class MenuView final : public QObject, public ControlView {
 public:
  /// A menu of the menu bar.
  MenuView(Menu& menu, ViewHost& host, QMenuBar& bar);
  /// An entry of another menu.
  MenuView(Menu& menu, ViewHost& host, QMenu& parent);

  void Changed(Property property) override;

 private:
  template <class Parent>
  void Make(Parent& parent);
  void Start();
  void MakeEntries(QMenu& menu);
  void Click();
  void LeaveMenuBar();
  QString Text() const;

  Menu& model_;
  ViewHost& host_;
  QAction* action_;  // Belongs to the menu bar or menu in which it stands.
  std::vector<std::unique_ptr<MenuView>> entries_;
};

}  // namespace tagsmith
