#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "services/Arrangement.h"
#include "services/Control.h"
#include "services/Event.h"
#include "services/FormPool.h"
#include "services/Units.h"
#include "services/WindowSystem.h"

namespace tagsmith {

class Menu;
struct Platform;

enum class Modality { kModeless, kModal };

enum class BorderStyle {
  kSizable,
  kFixed,       ///< Title bar and close button; the size follows the arrangement.
  kToolWindow,  ///< As kFixed, for a single small question.
  kNone,        ///< No title bar: a splash.
};

/// `MousePointer` values.
constexpr int kDefaultPointer = 0;
constexpr int kSizeWestEast = 9;
constexpr int kHourglass = 11;

/// A form: controls, geometry and events, with a window as its view. A form is made, loaded
/// (`onLoad` runs once, before anything is shown), shown, and unloaded, which closes the window at
/// once; it stays alive until the handlers that are running are done.
class Form {
 public:
  /// `name` is the form's own, as "frmDate". `platform` outlives the form.
  Form(Platform& platform, std::string name);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  Platform& GetPlatform() const { return platform_; }

  // --- Life ---

  /// Runs `onLoad` if that has not happened yet.
  void Load();
  /// Loads the form if need be and shows it; a modal form returns when it is unloaded or hidden.
  /// `owner` is the form it stands above; null means the one that has the keyboard.
  void Show(Modality modality = Modality::kModeless, Form* owner = nullptr);
  void Hide();
  /// Raises `onUnload`; unless that sets its argument to true, the window closes and the form is
  /// done with. False if the form stayed.
  bool Unload();
  bool IsLoaded() const { return loaded_; }
  bool IsVisible() const { return visible_; }

  Event<> onLoad;
  Event<> onResize;
  Event<bool&> onUnload;  ///< Set the argument to true to keep the form.

  // --- Looks ---

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int pointer);
  BorderStyle Border() const { return border_; }
  void SetBorder(BorderStyle border) { border_ = border; }
  bool IsOnTop() const { return onTop_; }
  /// Whether the form stays above all other windows of the desktop.
  void SetOnTop(bool onTop);
  void Refresh();
  const std::string& Tag() const { return tag_; }
  void SetTag(std::string tag) { tag_ = std::move(tag); }

  // --- Geometry ---

  /// The outer size: client area plus kFormExtraWidth and kFormExtraHeight. Writing one raises
  /// `onResize` inside the statement if it changes. Forms with an arrangement leave it to the view.
  Twips Width() const { return width_; }
  Twips Height() const { return height_; }
  void SetWidth(Twips width);
  void SetHeight(Twips height);
  /// The client area.
  Twips ScaleWidth() const { return width_ - kFormExtraWidth; }
  Twips ScaleHeight() const { return height_ - kFormExtraHeight; }
  bool IsMinimized() const { return minimized_; }

  /// How the controls stand, for a form that leaves the arithmetic to the view; null for one whose
  /// controls carry their own geometry.
  const Arrangement* GetArrangement() const { return arrangement_.get(); }
  /// The frame of a group becomes the container of what stands in it.
  void SetArrangement(Arrangement arrangement);

  // --- Controls ---

  /// Makes a control that the form owns. `arguments` go to its constructor, behind the form.
  template <class T, class... Args>
  T& Add(Args&&... arguments) {
    auto control = std::make_unique<T>(*this, std::forward<Args>(arguments)...);
    T& added = *control;
    owned_.push_back(std::move(control));
    return added;
  }

  /// All controls in the order in which they were made: the Tab order where there is no
  /// arrangement.
  const std::vector<Control*>& Controls() const { return controls_; }

  /// The control of that name and index, null if there is none.
  Control* Find(std::string_view name, int index = Control::kNoIndex) const;

  /// As `Find`, for a control that must be there and be a `T`; throws std::logic_error otherwise.
  template <class T>
  T& Get(std::string_view name, int index = Control::kNoIndex) const {
    auto* found = dynamic_cast<T*>(Find(name, index));
    if (found == nullptr) ThrowMissing(name, index);
    return *found;
  }

  /// The top-level menus, left to right.
  const std::vector<Menu*>& Menus() const { return menus_; }

  /// The control that has the focus when the form has it; null for none.
  Control* ActiveControl() const { return activeControl_; }
  /// Takes the focus off the control that has it, without an event: the next click gives it anew.
  void ClearFocus();

  /// The button that Enter presses where the control with the focus has no use for that key of its
  /// own; null for none.
  CommandButton* DefaultButton() const { return defaultButton_; }
  void SetDefaultButton(CommandButton& button) { defaultButton_ = &button; }

  /// The control that has the keyboard when the form comes onto the screen; null for the first that
  /// takes it.
  Control* InitialFocus() const { return initialFocus_; }
  void SetInitialFocus(Control& control) { initialFocus_ = &control; }

  // --- The user's actions, called by the view and by tests ---

  /// The window has taken this outer size.
  void UserResize(Twips width, Twips height);
  void UserMinimize(bool minimized) { minimized_ = minimized; }
  /// The window has become the active one.
  void UserActivate();
  /// The title bar's close button or the Escape key.
  void UserClose();

  // --- For controls and views ---

  /// Calls the handler of `event`, if it has one. The form stays alive meanwhile; an error that the
  /// handler lets out is shown in a message box and ends there.
  template <class... Args>
  void Raise(const Event<Args...>& event, std::type_identity_t<Args>... arguments) {
    if (!event.IsBound()) return;
    const FormPool::Busy busy(Pool());
    Guard([handler = event.Bound(), &arguments...] {
      handler(std::forward<std::type_identity_t<Args>>(arguments)...);
    });
  }

  FormView* View() const { return view_.get(); }

 private:
  friend class Control;
  friend class Menu;

  void Register(Control& control);
  void Unregister(Control& control);
  void GiveFocus(Control& control, bool byUser);
  void Resized(Twips width, Twips height);
  void Tell(Property property);
  FormPool& Pool() const;
  void Guard(const std::function<void()>& handler);
  [[noreturn]] void ThrowMissing(std::string_view name, int index) const;

  Platform& platform_;
  std::string name_;
  std::string caption_;
  std::string tag_;
  BorderStyle border_ = BorderStyle::kFixed;
  int mousePointer_ = kDefaultPointer;
  bool onTop_ = false;
  bool loaded_ = false;
  bool unloading_ = false;
  bool visible_ = false;
  bool minimized_ = false;
  Twips width_ = kFormExtraWidth;
  Twips height_ = kFormExtraHeight;
  std::unique_ptr<Arrangement> arrangement_;
  std::vector<Control*> controls_;
  std::vector<Menu*> menus_;
  Control* activeControl_ = nullptr;
  Control* initialFocus_ = nullptr;
  CommandButton* defaultButton_ = nullptr;
  std::unique_ptr<FormView> view_;
  std::vector<std::unique_ptr<Control>> owned_;
};

template <class... Args>
void Control::Raise(const Event<Args...>& event, std::type_identity_t<Args>... arguments) {
  form_.Raise(event, std::forward<std::type_identity_t<Args>>(arguments)...);
}

}  // namespace tagsmith
