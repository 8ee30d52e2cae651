#include "services/desktop/editpane/ScintillaText.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>

#include "services/Utf8.h"

namespace tagsmith {
namespace {

using Sci = QsciScintillaBase;

unsigned long Unsigned(std::size_t position) { return static_cast<unsigned long>(position); }
long Signed(std::size_t position) { return static_cast<long>(position); }

std::size_t Ask(const Sci& widget, unsigned message, std::size_t argument = 0) {
  return static_cast<std::size_t>(widget.SendScintilla(message, Unsigned(argument), 0L));
}

// Keeps the widget from telling of modifications as long as it lives.
class Unheard {
 public:
  explicit Unheard(Sci& widget) : widget_(widget), mask_(Ask(widget, Sci::SCI_GETMODEVENTMASK)) {
    widget_.SendScintilla(Sci::SCI_SETMODEVENTMASK, 0UL, 0L);
  }
  ~Unheard() { widget_.SendScintilla(Sci::SCI_SETMODEVENTMASK, Unsigned(mask_), 0L); }
  Unheard(const Unheard&) = delete;
  Unheard& operator=(const Unheard&) = delete;

 private:
  Sci& widget_;
  std::size_t mask_;
};

}  // namespace

std::size_t ScintillaText::Length() const { return Ask(widget_, Sci::SCI_GETLENGTH); }

std::size_t ScintillaText::Snap(std::size_t position) const {
  constexpr std::size_t kLongestCharacter = 4;
  const std::size_t length = Length();
  if (position >= length) return length;

  const std::size_t from = position - std::min(position, kLongestCharacter - 1);
  const std::size_t to = std::min(position + kLongestCharacter, length);
  const std::string around = Bytes({from, to - from});
  const std::size_t at = position - from;
  if (at > 0 && around.compare(at - 1, 2, "\r\n") == 0) return position - 1;
  return from + SnapToCharacter(around, at);
}

TextSpan ScintillaText::Snap(std::size_t start, std::size_t length) const {
  const std::size_t clamped = std::min(start, Length());
  const std::size_t first = Snap(clamped);
  return {first, Snap(clamped + std::min(length, Length() - clamped)) - first};
}

std::string ScintillaText::Bytes(const TextSpan& span) const {
  std::string bytes(span.length, '\0');
  // Scintilla ends the range with a NUL, which falls on the string's own.
  widget_.SendScintilla(Sci::SCI_GETTEXTRANGE, Signed(span.start), Signed(span.End()),
                        bytes.data());
  return bytes;
}

std::size_t ScintillaText::LineFromPosition(std::size_t position) const {
  return Ask(widget_, Sci::SCI_LINEFROMPOSITION, std::min(position, Length()));
}

TextSpan ScintillaText::Selection() const {
  const std::size_t start = Ask(widget_, Sci::SCI_GETSELECTIONSTART);
  return {start, Ask(widget_, Sci::SCI_GETSELECTIONEND) - start};
}

// Other than SCI_SETSEL this does not take the primary selection of the desktop, which is the
// user's to give and slow to take.
void ScintillaText::Select(const TextSpan& span) {
  widget_.SendScintilla(Sci::SCI_SETSELECTION, Unsigned(span.End()), Signed(span.start));
  // The first message tells nobody that the caret has moved.
  widget_.SendScintilla(Sci::SCI_SETSELECTIONNCARET, 0UL, Signed(span.End()));
}

void ScintillaText::Replace(const TextSpan& span, std::string_view text) {
  const Unheard unheard(widget_);
  widget_.SendScintilla(Sci::SCI_BEGINUNDOACTION);
  widget_.SendScintilla(Sci::SCI_SETTARGETRANGE, Unsigned(span.start), Signed(span.End()));
  widget_.SendScintilla(Sci::SCI_REPLACETARGET, std::uintptr_t{text.size()},
                        text.empty() ? "" : text.data());
  widget_.SendScintilla(Sci::SCI_ENDUNDOACTION);
}

bool ScintillaText::Undo() {
  if (InGroup() || Ask(widget_, Sci::SCI_CANUNDO) == 0) return false;
  const Unheard unheard(widget_);
  widget_.SendScintilla(Sci::SCI_UNDO);
  return true;
}

bool ScintillaText::Redo() {
  if (InGroup() || Ask(widget_, Sci::SCI_CANREDO) == 0) return false;
  const Unheard unheard(widget_);
  widget_.SendScintilla(Sci::SCI_REDO);
  return true;
}

void ScintillaText::BeginGroup() {
  ++groups_;
  widget_.SendScintilla(Sci::SCI_BEGINUNDOACTION);
}

void ScintillaText::EndGroup() {
  if (!InGroup()) return;
  --groups_;
  widget_.SendScintilla(Sci::SCI_ENDUNDOACTION);
}

void ScintillaText::EmptyUndoHistory() { widget_.SendScintilla(Sci::SCI_EMPTYUNDOBUFFER); }

}  // namespace tagsmith
