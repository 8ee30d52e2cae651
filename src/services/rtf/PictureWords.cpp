// Pictures, objects and shapes (Rich Text Format 1.9.1, "Pictures", "Objects" and "Word 97 through
// Word 2007 RTF for Drawing Objects (Shapes)").

#include "services/rtf/ControlWords.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

constexpr int kPixelsPerInch = 96;
constexpr int kHundredthsOfMillimetresPerInch = 2540;
constexpr int kPointsPerInch = 72;

void EnterPicture(Interpreter& interpreter, const Control&) { interpreter.BeginPicture(); }

bool IsInPicture(Interpreter& interpreter) {
  return interpreter.State().destination == Destination::kPicture;
}

void SetFile(Interpreter& interpreter, const Control& control) {
  if (!IsInPicture(interpreter)) return;
  interpreter.picture.SetFile(static_cast<PictureType>(control.value));
}

enum Kind { kEmf, kWmf, kOs2, kMacintosh, kBitmap };

void SetKind(Interpreter& interpreter, const Control& control) {
  if (!IsInPicture(interpreter)) return;
  PictureBuilder& picture = interpreter.picture;
  switch (control.value) {
    case kEmf:
      return picture.SetKind("EMF", kHundredthsOfMillimetresPerInch);
    case kWmf:
      return picture.SetKind("WMF", kHundredthsOfMillimetresPerInch);
    case kOs2:
      return picture.SetKind("OS/2 metafile", kHundredthsOfMillimetresPerInch);
    case kMacintosh:
      return picture.SetKind("Macintosh picture", kPointsPerInch);
    default:
      return picture.SetKind("bitmap", kPixelsPerInch);
  }
}

using SetPictureLength = void (PictureBuilder::*)(PictureLength, int);

template <SetPictureLength kSet>
void SetLength(Interpreter& interpreter, const Control& control) {
  if (!IsInPicture(interpreter)) return;
  (interpreter.picture.*kSet)(static_cast<PictureLength>(control.value), control.parameter);
}

void EnterShape(Interpreter& interpreter, const Control&) { interpreter.BeginShape(); }

void EnterObject(Interpreter& interpreter, const Control&) { interpreter.BeginObject(); }
void EnterObjectResult(Interpreter& interpreter, const Control&) { interpreter.SetObjectShown(); }

void EnterBox(Interpreter& interpreter, const Control&) { interpreter.BeginBox(); }

void EnterPropertyName(Interpreter& interpreter, const Control&) {
  interpreter.EnterCapture(GroupEnd::kPropertyName);
}

void EnterPropertyValue(Interpreter& interpreter, const Control&) {
  interpreter.EnterCapture(GroupEnd::kPropertyValue);
}

constexpr int kWidth = static_cast<int>(PictureLength::kWidth);
constexpr int kHeight = static_cast<int>(PictureLength::kHeight);

constexpr ControlWord kWords[] = {
    {"pict", EnterPicture},
    {"pngblip", SetFile, static_cast<int>(PictureType::kPng)},
    {"jpegblip", SetFile, static_cast<int>(PictureType::kJpeg)},
    {"emfblip", SetKind, kEmf},
    {"wmetafile", SetKind, kWmf},
    {"pmmetafile", SetKind, kOs2},
    {"macpict", SetKind, kMacintosh},
    {"dibitmap", SetKind, kBitmap},
    {"wbitmap", SetKind, kBitmap},
    {"picw", SetLength<&PictureBuilder::SetOwnLength>, kWidth},
    {"pich", SetLength<&PictureBuilder::SetOwnLength>, kHeight},
    {"picwgoal", SetLength<&PictureBuilder::SetGoal>, kWidth},
    {"pichgoal", SetLength<&PictureBuilder::SetGoal>, kHeight},
    {"picscalex", SetLength<&PictureBuilder::SetScale>, kWidth},
    {"picscaley", SetLength<&PictureBuilder::SetScale>, kHeight},
    {"object", EnterObject},
    {"result", EnterObjectResult},
    {"shpinst", EnterShape},
    {"shpgrp", EnterShape},
    {"do", EnterShape},
    {"shptxt", EnterBox},
    {"dptxbxtext", EnterBox},
    {"sn", EnterPropertyName},
    {"sv", EnterPropertyValue},
};

}  // namespace

std::span<const ControlWord> PictureWords() { return kWords; }

}  // namespace tagsmith::rtf
