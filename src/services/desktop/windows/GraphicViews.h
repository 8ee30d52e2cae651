#pragma once

#include "services/Graphics.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

class FrameView final : public ViewOf<Frame> {
 public:
  FrameView(Frame& control, ViewHost& host, QWidget& parent);
};

class Figure;
class PictureFace;

class ShapeView final : public ViewOf<Shape> {
 public:
  ShapeView(Shape& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;
  void Resized() override;

  Figure* figure_;
};

class LineView final : public ViewOf<Line> {
 public:
  LineView(Line& control, ViewHost& host, QWidget& parent);

 private:
  QRect WantedPlace() const override;
};

class PictureBoxView final : public ViewOf<PictureBox> {
 public:
  PictureBoxView(PictureBox& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;
  void Resized() override;

  Figure* figure_;
};

/// A picture from its top left corner on, cut off where the control ends.
class ImageView final : public ViewOf<Image> {
 public:
  ImageView(Image& control, ViewHost& host, QWidget& parent);

 private:
  void Update(Property property) override;
  void Resized() override;
  QRect WantedPlace() const override;

  PictureFace* face_;
};

}  // namespace tagsmith
