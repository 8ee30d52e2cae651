// How characters look (Rich Text Format 1.9.1, "Font (Character) Formatting Properties").

#include <algorithm>

#include "services/rtf/ControlWords.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

constexpr int kUsualHalfPoints = 24;
constexpr int kMostHalfPoints = 3276;

template <bool CharacterFormat::*kFlag>
void SetFlag(Interpreter& interpreter, const Control& control) {
  interpreter.State().characters.*kFlag = control.IsOn();
}

template <bool GroupState::*kFlag>
void SetStateFlag(Interpreter& interpreter, const Control& control) {
  interpreter.State().*kFlag = control.IsOn();
}

void EndUnderline(Interpreter& interpreter, const Control&) {
  interpreter.State().characters.underline = false;
}

void SetFont(Interpreter& interpreter, const Control& control) {
  GroupState& state = interpreter.State();
  if (state.destination == Destination::kFontTable) {
    interpreter.fonts.Begin(control.parameter);
  } else {
    state.characters.font = interpreter.fonts.Find(control.parameter);
  }
}

void SetAssociatedFont(Interpreter& interpreter, const Control& control) {
  interpreter.State().associatedFont = interpreter.fonts.Find(control.parameter);
}

// In a run from right to left, the bytes are those of the font for such scripts.
void SetDirection(Interpreter& interpreter, const Control& control) {
  interpreter.State().usesAssociatedFont = control.value != 0;
}

void SetSize(Interpreter& interpreter, const Control& control) {
  interpreter.State().characters.halfPoints =
      std::clamp(control.ParameterOr(kUsualHalfPoints), 1, kMostHalfPoints);
}

void SetColour(Interpreter& interpreter, const Control& control) {
  interpreter.State().characters.colour = interpreter.colours.At(control.parameter);
}

// Highlighting covers shading.
void SetBackground(GroupState& state) {
  state.characters.background = state.highlight != kAbsent ? state.highlight : state.shading;
}

void SetHighlight(Interpreter& interpreter, const Control& control) {
  interpreter.State().highlight = interpreter.colours.At(control.parameter);
  SetBackground(interpreter.State());
}

void SetShading(Interpreter& interpreter, const Control& control) {
  interpreter.State().shading = interpreter.colours.At(control.parameter);
  SetBackground(interpreter.State());
}

void SetRaise(Interpreter& interpreter, const Control& control) {
  interpreter.State().characters.raise =
      control.IsOn() ? static_cast<Raise>(control.value) : Raise::kNone;
}

void SetPlain(Interpreter& interpreter, const Control&) {
  GroupState& state = interpreter.State();
  state.characters = {.font = interpreter.DefaultFont(), .link = state.characters.link};
  state.highlight = kAbsent;
  state.shading = kAbsent;
  state.associatedFont = kAbsent;
  state.usesAssociatedFont = false;
  state.isHidden = false;
  state.isDeleted = false;
  state.isHiddenInPages = false;
}

constexpr auto kUnderline = SetFlag<&CharacterFormat::underline>;
constexpr int kNoRaise = static_cast<int>(Raise::kNone);
constexpr int kSuper = static_cast<int>(Raise::kSuper);
constexpr int kSub = static_cast<int>(Raise::kSub);

constexpr ControlWord kWords[] = {
    {"plain", SetPlain},
    {"f", SetFont},
    {"af", SetAssociatedFont},
    {"ltrch", SetDirection, 0},
    {"rtlch", SetDirection, 1},
    {"fs", SetSize},
    {"b", SetFlag<&CharacterFormat::bold>},
    {"i", SetFlag<&CharacterFormat::italic>},
    {"strike", SetFlag<&CharacterFormat::strike>},
    {"striked", SetFlag<&CharacterFormat::strike>},
    {"scaps", SetFlag<&CharacterFormat::smallCaps>},
    {"caps", SetFlag<&CharacterFormat::allCaps>},
    {"super", SetRaise, kSuper},
    {"up", SetRaise, kSuper},
    {"sub", SetRaise, kSub},
    {"dn", SetRaise, kSub},
    {"nosupersub", SetRaise, kNoRaise},
    {"v", SetStateFlag<&GroupState::isHidden>},
    {"deleted", SetStateFlag<&GroupState::isDeleted>},
    {"webhidden", SetStateFlag<&GroupState::isHiddenInPages>},
    {"cf", SetColour},
    {"highlight", SetHighlight},
    {"cb", SetShading},
    {"chcbpat", SetShading},
    {"ulnone", EndUnderline},
    {"ul", kUnderline},
    {"uld", kUnderline},
    {"uldash", kUnderline},
    {"uldashd", kUnderline},
    {"uldashdd", kUnderline},
    {"uldb", kUnderline},
    {"ulhair", kUnderline},
    {"ulhwave", kUnderline},
    {"ulldash", kUnderline},
    {"ulth", kUnderline},
    {"ulthd", kUnderline},
    {"ulthdash", kUnderline},
    {"ulthdashd", kUnderline},
    {"ulthdashdd", kUnderline},
    {"ulthldash", kUnderline},
    {"ululdbwave", kUnderline},
    {"ulw", kUnderline},
    {"ulwave", kUnderline},
};

}  // namespace

std::span<const ControlWord> CharacterWords() { return kWords; }

}  // namespace tagsmith::rtf
