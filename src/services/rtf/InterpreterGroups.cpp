// What begins and ends with a group: fields, pictures, notes, boxes.

#include <cstddef>
#include <utility>

#include "services/rtf/CodePages.h"
#include "services/rtf/Fields.h"
#include "services/rtf/Interpreter.h"

namespace tagsmith::rtf {
namespace {

// A text of its own begins: it stands in no table, list or link of the one around it.
void BeginText(GroupState& state) {
  state.paragraph = {};
  state.isInTable = false;
  state.tableLevel = 0;
  state.listOverride = 0;
  state.oldList = {};
  state.characters.link = kAbsent;
  state.characters.raise = Raise::kNone;
}

}  // namespace

void Interpreter::EndTitle() {
  if (hasTitle_ || captured_.empty()) return;
  hasTitle_ = true;
  sink_.SetTitle(captured_);
}

void Interpreter::BeginField() {
  State().field = static_cast<int>(fields_.size());
  fields_.emplace_back();
}

void Interpreter::BeginInstruction() {
  if (State().field == kAbsent) return SkipGroup();
  if (!EnterDestination(Destination::kInstruction, GroupEnd::kInstruction)) return;
  State().instruction = State().field;
}

void Interpreter::EndInstruction(Field& field) {
  const FieldMeaning meaning = ReadInstruction(field.instruction);
  if (meaning.kind == FieldKind::kLink) {
    field.link = links_++;
    sink_.AddLink(field.link, meaning.target);
  } else if (meaning.kind == FieldKind::kSymbol) {
    field.isAnswered = true;
    if (meaning.isUnicode || meaning.character > 0xFF) return PutUnicode(meaning.character);
    const auto byte = static_cast<unsigned char>(meaning.character);
    PutSign(SymbolSetOfFont(meaning.font), byte, FromCodePage(kWindowsLatin, byte));
  }
}

void Interpreter::BeginResult() {
  if (State().field == kAbsent) return;
  const Field& field = fields_[static_cast<std::size_t>(State().field)];
  if (field.isAnswered) return SkipGroup();
  if (field.link != kAbsent) State().characters.link = field.link;
}

void Interpreter::EndPropertyValue() {
  const bool isDescription = std::exchange(isDescription_, false);
  if (!isDescription) return;
  if (isPictureOpen_) {
    description_ = captured_;
  } else if (!shapes_.empty()) {
    shapes_.back().description = captured_;
  }
}

// In a shape, the picture is the value of a property.
void Interpreter::BeginPicture() {
  const Destination around = State().destination;
  const bool canStand = around == Destination::kBody || around == Destination::kCapture;
  if (!canStand || isPictureOpen_ || !IsShowing()) return SkipGroup();
  if (!EnterDestination(Destination::kPicture, GroupEnd::kPicture)) return;
  isPictureOpen_ = true;
  picture = {};
  description_.clear();
}

void Interpreter::EndPicture() {
  isPictureOpen_ = false;
  Picture ended = picture.Take(description_);
  if (State().destination != Destination::kCapture || shapes_.empty()) {
    return TellPicture(std::move(ended));
  }
  TellShape(shapes_.back());
  shapes_.back().picture = std::move(ended);
}

void Interpreter::TellPicture(Picture&& told) {
  const int number = pictures_++;
  isObjectShown_ = true;
  sink_.AddPicture(number, std::move(told));
  body.AddMark(RunKind::kPicture, State().characters, number);
}

void Interpreter::TellShape(Shape& shape) {
  if (!shape.picture) return;
  if (shape.picture->description.empty()) shape.picture->description = shape.description;
  TellPicture(std::move(*shape.picture));
}

// What stands beside the text and the pictures of a shape describes it.
void Interpreter::BeginShape() {
  const Destination around = State().destination;
  if (around != Destination::kBody && around != Destination::kNowhere) return SkipGroup();
  if (EnterDestination(Destination::kNowhere, GroupEnd::kShape)) shapes_.emplace_back();
}

void Interpreter::EndShape() {
  TellShape(shapes_.back());
  shapes_.pop_back();
}

void Interpreter::BeginObject() {
  const bool isShown = State().destination == Destination::kBody && IsShowing();
  if (!isShown || !CanEnterDestination()) return;
  State().end = GroupEnd::kObject;
  isObjectShown_ = false;
}

// An object that stands in another one's result is shown in any case.
void Interpreter::EndObject() {
  if (isObjectShown_) return;
  TellPicture({.kind = "object", .bytes = {}, .description = {}});
}

void Interpreter::BeginNote() {
  if (State().destination != Destination::kBody || !IsShowing()) return SkipGroup();
  if (!EnterDestination(Destination::kBody, GroupEnd::kNote)) return;
  if (!body.BeginNote()) {
    State().end = GroupEnd::kOrdinary;
    return;
  }
  BeginText(State());
}

void Interpreter::BeginBox() {
  if (State().destination != Destination::kNowhere) return SkipGroup();
  const int depth = TableDepthOf(State());
  if (!EnterDestination(Destination::kBody, GroupEnd::kTextBox)) return;
  if (!body.BeginBox(depth)) {
    State().end = GroupEnd::kOrdinary;
    return;
  }
  BeginText(State());
}

}  // namespace tagsmith::rtf
