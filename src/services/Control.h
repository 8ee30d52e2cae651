#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

#include "services/Event.h"
#include "services/Units.h"
#include "services/WindowSystem.h"

namespace tagsmith {

class CommandButton;
class Form;

enum class ControlKind : std::uint8_t {
  kCheckBox,
  kComboBox,
  kCommandButton,
  kDirListBox,
  kDriveListBox,
  kFileListBox,
  kFrame,
  kImage,
  kLabel,
  kLine,
  kListBox,
  kMenu,
  kMSFlexGrid,
  kOptionButton,
  kPictureBox,
  kProgressBar,
  kRichTextBox,
  kShape,
  kSlider,
  kSSTab,
  kStatusBar,
  kTextBox,
};

/// Mouse buttons, as the mouse events count them.
constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kMiddleButton = 4;

/// What every control has: a name, a place, and the focus. It holds its own properties; a write
/// tells the view and raises the control's event inside the statement where the table of events
/// (docs/architecture.md) says so. Lengths are twips, from the container's top left corner.
class Control {
 public:
  static constexpr int kNoIndex = -1;

  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  ControlKind Kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  /// The index in its control array, kNoIndex for a single control.
  int Index() const { return index_; }
  Form& Owner() const { return form_; }

  // --- Place ---

  const TwipsRect& Bounds() const { return bounds_; }
  Twips Left() const { return bounds_.left; }
  Twips Top() const { return bounds_.top; }
  Twips Width() const { return bounds_.width; }
  Twips Height() const { return bounds_.height; }
  void SetLeft(Twips left);
  void SetTop(Twips top);
  /// Sizes below 0 count as 0.
  void SetWidth(Twips width);
  void SetHeight(Twips height);
  void Move(const TwipsRect& bounds);

  /// What the control stands in: a Frame, PictureBox or SSTab (there on page `page`), or null for
  /// the form itself.
  Control* Container() const { return container_; }
  int Page() const { return page_; }
  void SetContainer(Control& container, int page = 0);

  // --- Looks ---

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  const std::string& ToolTipText() const { return toolTip_; }
  void SetToolTipText(std::string_view text);
  /// The text colour of labels and the like; -1 for the desktop's own.
  Colour ForeColor() const { return foreColor_; }
  void SetForeColor(Colour colour);
  Colour BackColor() const { return backColor_; }
  void SetBackColor(Colour colour);
  /// The name of the font; empty for the desktop's own. Its size is the desktop's.
  const std::string& FontName() const { return fontName_; }
  void SetFontName(std::string_view name);
  int MousePointer() const { return mousePointer_; }
  void SetMousePointer(int pointer) { mousePointer_ = pointer; }

  // --- Focus ---

  /// Gives the control the keyboard, and its window if another has it. `onGotFocus` is raised
  /// inside the call unless the control has it already. A control that is hidden or disabled, or
  /// whose form is not on the screen, refuses without a word.
  void SetFocus();
  bool HasFocus() const;
  /// Whether the mouse gives the control the focus, as the Tab key does.
  bool FocusOnClick() const { return focusOnClick_; }
  void SetFocusOnClick(bool focus) { focusOnClick_ = focus; }

  Event<> onGotFocus;
  Event<> onLostFocus;

  /// The user has moved the focus here, by mouse, Tab or shortcut. The view calls it when that
  /// event is done; never because a window was reactivated or a menu or popup closed.
  void UserFocus();

  // --- The view ---

  void AttachView(ControlView* view) { view_ = view; }
  ControlView* View() const { return view_; }

 protected:
  Control(Form& form, ControlKind kind, std::string name, int index = kNoIndex);

  void Tell(Property property);
  /// Whether the user can act on the control now.
  bool TakesInput() const {
    return enabled_ && visible_ && (container_ == nullptr || container_->TakesInput());
  }
  template <class... Args>
  void Raise(const Event<Args...>& event, std::type_identity_t<Args>... arguments);

 private:
  friend class Form;

  Form& form_;
  ControlKind kind_;
  std::string name_;
  int index_;
  TwipsRect bounds_;
  Control* container_ = nullptr;
  int page_ = 0;
  bool enabled_ = true;
  bool visible_ = true;
  bool focusOnClick_ = true;
  std::string toolTip_;
  std::string fontName_;
  Colour foreColor_ = -1;
  Colour backColor_ = -1;
  int mousePointer_ = 0;
  ControlView* view_ = nullptr;
};

}  // namespace tagsmith
