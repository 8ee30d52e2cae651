#pragma once

#include <QButtonGroup>
#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <map>
#include <memory>
#include <vector>

#include "services/Form.h"
#include "services/WindowSystem.h"
#include "services/desktop/windows/FormWidget.h"
#include "services/desktop/windows/MenuView.h"
#include "services/desktop/windows/TwipsScale.h"
#include "services/desktop/windows/ViewHost.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

/// The window of a form, with the views of its controls. Controls on a page of an SSTab get theirs
/// when the page is first seen.
class FormWindow final : public QObject, public FormView, private ViewHost {
 public:
  explicit FormWindow(Form& form);
  ~FormWindow() override;
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  FormWidget& Window() const { return *window_; }

  void Show() override;
  void RunModal(Form* owner) override;
  void Close() override;
  void BringToFront() override;
  void RepaintNow() override;
  void Changed(Property property) override;
  void ControlsChanged() override;

 private:
  // For the views.
  const TwipsScale& Scale() const override { return scale_; }
  QRect AreaFor(const WidgetView& view) const override;
  void Act(const std::function<void()>& action) override;
  void UserFocused(WidgetView& view) override;
  void DropFocus() override;
  QButtonGroup& OptionGroup(const Control* container) override;
  void MakePage(const SSTab& tab, int page) override;
  Control* Dragged() const override { return dragged_; }
  void SetDragged(Control* control) override { dragged_ = control; }

  // Making the views.
  WindowEvents Events();
  void MakeMenus();
  void MakeViews();
  /// Makes the view of `control` and of what it contains, unless there is one already.
  WidgetView* MakeView(Control& control, QWidget& parent);
  void MakeChildren(const Control* container, int page, QWidget& parent);
  void SetTabOrder() const;
  void LinkLabels() const;
  void SyncViews();
  void DropViewsOfGoneControls();

  // Size.
  QSize ModelClientSize() const;
  int TitleWidth() const;
  void FitToArrangement();
  void FitToModel();
  void ClientResized(QSize size);
  void AnswerModel(QSize given);
  void PlaceViews();

  void PutOnScreen(const QWidget* above);
  void GiveInitialFocus();
  void FinishEvent();
  void DeliverFocus();
  void ShowPointer(int pointer);
  bool HasLayout() const { return form_.GetArrangement() != nullptr; }

  Form& form_;
  TwipsScale scale_;
  FormWidget* window_;  // Deleted later than this, never inside one of its own signals.
  std::vector<std::unique_ptr<WidgetView>> views_;
  WidgetView* statusBar_ = nullptr;
  std::vector<std::unique_ptr<MenuView>> menus_;
  std::map<const Control*, std::unique_ptr<QButtonGroup>> optionGroups_;
  std::unique_ptr<QEventLoop> modalLoop_;
  QTimer afterEvent_;             // Fires once the event loop is reached.
  QPointer<WidgetView> focused_;  // What the user has moved the focus to and the model not heard.
  QSize minimum_{0, 0};           // The client size below which the form has refused to go.
  Control* dragged_ = nullptr;
  int acting_ = 0;
  bool resizing_ = false;
  bool controlsChanged_ = false;
  bool shown_ = false;
  bool hourglass_ = false;
  bool wasUp_ = false;  // The desktop has put the window up once.
};

}  // namespace tagsmith
