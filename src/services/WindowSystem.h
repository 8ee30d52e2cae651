#pragma once

#include <memory>

namespace tagsmith {

class Control;
class Form;
class TextPane;

/// What of a form or control has changed, told to its view.
enum class Property {
  kBackColor,
  kCaption,
  kEnabled,
  kFocus,
  kFont,
  kForeColor,
  kGeometry,
  kItems,
  kLimits,
  kMousePointer,
  kOnTop,
  kPicture,
  kSelection,
  kTab,
  kText,
  kToolTip,
  kValue,
  kVisible,
};

/// What shows a control on the screen. It is told of each change the system makes and never
/// answers with an event; what the user does goes into the control through the control's own user
/// actions.
class ControlView {
 public:
  virtual ~ControlView() = default;

  /// The system has changed the property.
  virtual void Changed(Property property) = 0;

  /// A manual drag from this control has been allowed (true) or ended (false).
  virtual void Drag(bool allowed) { static_cast<void>(allowed); }
};

/// The window of a form. It makes views for the form's controls when it is first shown.
class FormView {
 public:
  virtual ~FormView() = default;

  /// Puts the window on the screen, in front of the others, without waiting.
  virtual void Show() = 0;

  /// Puts the window on the screen above `owner` (or above the active window when null), blocks
  /// all others, and returns when the form has been unloaded or hidden.
  virtual void RunModal(Form* owner) = 0;

  /// Takes the window off the screen; ends `RunModal`.
  virtual void Close() = 0;

  /// Brings the window in front of the program's other windows and gives it the keyboard.
  virtual void BringToFront() = 0;

  /// Paints what is waiting to be painted, at once.
  virtual void RepaintNow() = 0;

  /// The system has changed the property of the form.
  virtual void Changed(Property property) = 0;

  /// A control was added to or removed from the form while the window is there.
  virtual void ControlsChanged() = 0;
};

/// Makes what lies behind forms and edit panes.
class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  virtual std::unique_ptr<FormView> MakeFormView(Form& form) = 0;

  /// The live text component behind a `RichTextBox`.
  virtual std::unique_ptr<TextPane> MakeTextPane() = 0;
};

}  // namespace tagsmith
