#include "dialogs/frmFrameDialog.h"

#include "core/Application.h"

namespace tagsmith::dialogs {
namespace {

// The sketches, in twips.
constexpr Twips kSketchSize = 1455;
constexpr Twips kColumnWidth = 375;
constexpr Colour kColumnColour = 0xBF8E6C;

struct SketchLine {
  const char* name;
  int layout;
  Twips left;
  Twips top;
  Twips width;
};

constexpr Twips kRightPart = kSketchSize - kColumnWidth;

constexpr SketchLine kLines[] = {
    {"Line1", 0, kColumnWidth, kSketchSize / 2, kRightPart},
    {"Line1", 1, kColumnWidth, 600, kRightPart},
    {"Line2", 1, kColumnWidth, 1200, kRightPart},
    {"Line1", 2, kColumnWidth, kSketchSize / 2, kRightPart},
    {"Line3", 2, 0, 225, kColumnWidth},
};

constexpr int kCancelChoice = kFrameSetCount;

}  // namespace

frmFrameDialog::frmFrameDialog(Application& application)
    : ResultForm(application, "frmFrameDialog", "Frame Dialog") {
  std::vector<Arrangement> choices;
  for (int layout = 0; layout < kFrameSetCount; ++layout) {
    Sketch(layout);
    cmdChoice(layout).SetCaption("Create");
    choices.emplace_back(picFrame1(layout));
    choices.emplace_back(cmdChoice(layout));
  }
  cmdChoice(kCancelChoice).SetCaption("Cancel");
  SetArrangement(Column({Grid(2, std::move(choices)), ButtonRow({cmdChoice(kCancelChoice)})}));
  cmdChoice.Bind(&CommandButton::onClick, [this](int index) { cmdChoice_Click(index); });
}

void frmFrameDialog::Sketch(int layout) {
  PictureBox& picture = picFrame1(layout);
  picture.Move({0, 0, kSketchSize, kSketchSize});
  picture.SetBackColor(kWhite);
  auto& column = Add<Shape>("Shape1", layout);
  column.SetContainer(picture);
  column.Move({0, 0, kColumnWidth, kSketchSize});
  column.SetFillColor(kColumnColour);
  for (const SketchLine& sketched : kLines) {
    if (sketched.layout != layout) continue;
    auto& line = Add<Line>(sketched.name, layout);
    line.SetContainer(picture);
    line.Move({sketched.left, sketched.top, sketched.width, 0});
    line.SetForeColor(kBlack);
  }
}

void frmFrameDialog::cmdChoice_Click(int index) {
  Finish(index == kCancelChoice ? std::string() : FrameSetPage(index));
}

}  // namespace tagsmith::dialogs
