#pragma once

#include <QRect>
#include <functional>

class QButtonGroup;

namespace tagsmith {

class Control;
class SSTab;
class TwipsScale;
class WidgetView;

/// What the view of a control needs of the window in which it stands.
class ViewHost {
 public:
  virtual ~ViewHost() = default;

  virtual const TwipsScale& Scale() const = 0;
  /// The area that `view` may cover, in the coordinates of its parent widget.
  virtual QRect AreaFor(const WidgetView& view) const = 0;

  /// Runs what a user's action means for the model. The form, and with it the view, may be gone
  /// when the call returns: it must be the caller's last deed.
  virtual void Act(const std::function<void()>& action) = 0;
  /// The user has moved the focus to `view`: tells the model once the present event is done.
  virtual void UserFocused(WidgetView& view) = 0;
  /// Takes the keyboard off whatever control has it.
  virtual void DropFocus() = 0;

  /// The group in which the options that stand in `container` exclude each other.
  virtual QButtonGroup& OptionGroup(const Control* container) = 0;
  /// Makes the views on a page that has not been seen yet.
  virtual void MakePage(const SSTab& tab, int page) = 0;

  /// The control that is being dragged, null for none.
  virtual Control* Dragged() const = 0;
  virtual void SetDragged(Control* control) = 0;
};

}  // namespace tagsmith
