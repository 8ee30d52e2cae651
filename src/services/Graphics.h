#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "services/Control.h"
#include "services/Pictures.h"

namespace tagsmith {

/// A text that the user cannot edit. `&` marks the access key of the control that follows it.
class Label : public Control {
 public:
  Label(Form& form, std::string name, std::string caption, int index = kNoIndex);

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  /// Whether an ampersand in the caption is itself (paths), instead of marking the access key.
  bool PlainCaption() const { return plainCaption_; }
  void SetPlainCaption(bool plain) { plainCaption_ = plain; }

  // The mouse, for a label that serves as a handle: button (kLeftButton ...; while moving, the
  // buttons held), then the place in twips from the label's own top left corner.
  Event<int, Twips, Twips> onMouseDown;
  Event<int, Twips, Twips> onMouseMove;
  Event<int, Twips, Twips> onMouseUp;

  void MouseDown(int button, Twips x, Twips y);
  void MouseMove(int buttons, Twips x, Twips y);
  void MouseUp(int button, Twips x, Twips y);

 private:
  std::string caption_;
  bool plainCaption_ = false;
};

/// A titled box around other controls. A disabled frame disables what stands in it.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption);

  const std::string& Caption() const { return caption_; }

 private:
  std::string caption_;
};

/// A filled rectangle with a border.
class Shape : public Control {
 public:
  Shape(Form& form, std::string name, int index = kNoIndex);

  Colour FillColor() const { return fill_; }
  void SetFillColor(Colour colour);

 private:
  Colour fill_ = kWhite;
};

/// A straight line. Its bounds are the rectangle that it crosses from the top left to the bottom
/// right; with no height or no width it is level or upright. In an arrangement it divides what
/// stands before it from what follows: upright in a row, level in a column.
class Line : public Control {
 public:
  Line(Form& form, std::string name, int index = kNoIndex);
};

/// A surface for shapes, lines and labels, with a colour of its own (`BackColor`) and a fixed size.
class PictureBox : public Control {
 public:
  PictureBox(Form& form, std::string name, int index = kNoIndex);
};

/// A picture in its natural size. Loading one sets the control's size to the picture's; emptying it
/// leaves the size as it is.
class Image : public Control {
 public:
  Image(Form& form, std::string name, int index = kNoIndex);

  const std::shared_ptr<const Picture>& GetPicture() const { return picture_; }
  void SetPicture(std::shared_ptr<const Picture> picture);
  /// A picture of the program's own, by resource name; empty for none.
  const std::string& PictureName() const { return pictureName_; }
  void SetPictureName(std::string_view name);
  /// Whether a thin border stands around the picture. With it, each pixel of the picture is one on
  /// the screen, however large the desktop's font makes the form; set before the form is shown.
  bool HasBorder() const { return hasBorder_; }
  void SetHasBorder(bool hasBorder) { hasBorder_ = hasBorder; }

 private:
  bool hasBorder_ = false;
  std::shared_ptr<const Picture> picture_;
  std::string pictureName_;
};

}  // namespace tagsmith
