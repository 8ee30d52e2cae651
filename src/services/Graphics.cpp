#include "services/Graphics.h"

#include "services/Form.h"

namespace tagsmith {

Label::Label(Form& form, std::string name, std::string caption, int index)
    : Control(form, ControlKind::kLabel, std::move(name), index), caption_(std::move(caption)) {}

void Label::SetCaption(std::string_view caption) {
  caption_ = caption;
  Tell(Property::kCaption);
}

void Label::MouseDown(int button, Twips x, Twips y) { Raise(onMouseDown, button, x, y); }
void Label::MouseMove(int buttons, Twips x, Twips y) { Raise(onMouseMove, buttons, x, y); }
void Label::MouseUp(int button, Twips x, Twips y) { Raise(onMouseUp, button, x, y); }

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, ControlKind::kFrame, std::move(name)), caption_(std::move(caption)) {}

Shape::Shape(Form& form, std::string name, int index)
    : Control(form, ControlKind::kShape, std::move(name), index) {}

void Shape::SetFillColor(Colour colour) {
  fill_ = colour;
  Tell(Property::kBackColor);
}

Line::Line(Form& form, std::string name, int index)
    : Control(form, ControlKind::kLine, std::move(name), index) {}

PictureBox::PictureBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::kPictureBox, std::move(name), index) {}

Image::Image(Form& form, std::string name, int index)
    : Control(form, ControlKind::kImage, std::move(name), index) {}

void Image::SetPicture(std::shared_ptr<const Picture> picture) {
  picture_ = std::move(picture);
  if (picture_) {
    SetWidth(picture_->WidthInPixels() * kTwipsPerPixel);
    SetHeight(picture_->HeightInPixels() * kTwipsPerPixel);
  }
  Tell(Property::kPicture);
}

void Image::SetPictureName(std::string_view name) {
  pictureName_ = name;
  Tell(Property::kPicture);
}

}  // namespace tagsmith
