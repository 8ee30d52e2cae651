#pragma once

#include <string>
#include <string_view>

#include "services/Control.h"

namespace tagsmith {

/// A push button. Its face is a caption, a picture, or both; `&` in the caption marks the access
/// key, `&&` is an ampersand.
class CommandButton : public Control {
 public:
  CommandButton(Form& form, std::string name, int index = kNoIndex);

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  /// The name of the picture in the program's resources; empty for none.
  const std::string& PictureName() const { return picture_; }
  void SetPictureName(std::string_view name);

  Event<> onClick;

  /// The user presses the button, by mouse, key or access key.
  void Click();

 private:
  std::string caption_;
  std::string picture_;
};

/// A check box. `Value` is 0 or 1. A write that changes it raises `onClick`.
class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name, std::string caption, int index = kNoIndex);

  const std::string& Caption() const { return caption_; }
  int Value() const { return value_; }
  void SetValue(int value);

  Event<> onClick;

  void Click();

 private:
  std::string caption_;
  int value_ = 0;
};

/// One of a group: all option buttons of one form that stand in the same container. Setting one
/// clears the others and raises its `onClick` if it was not set before.
class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name, std::string caption, int index = kNoIndex);

  const std::string& Caption() const { return caption_; }
  bool Value() const { return value_; }
  void SetValue(bool value);

  Event<> onClick;

  void Click();

 private:
  void ClearOthers();

  std::string caption_;
  bool value_ = false;
};

}  // namespace tagsmith
