#include "services/desktop/editpane/PaneKeys.h"

#include <Qsci/qscicommandset.h>
#include <Qsci/qsciscintilla.h>

#include <QKeyEvent>
#include <algorithm>
#include <array>

namespace tagsmith {
namespace {

using Command = QsciCommand::Command;

constexpr std::array kOrdinaryCommands = {Command::LineDown,
                                          Command::LineDownExtend,
                                          Command::LineScrollDown,
                                          Command::LineUp,
                                          Command::LineUpExtend,
                                          Command::LineScrollUp,
                                          Command::CharLeft,
                                          Command::CharLeftExtend,
                                          Command::CharRight,
                                          Command::CharRightExtend,
                                          Command::WordLeft,
                                          Command::WordLeftExtend,
                                          Command::WordRight,
                                          Command::WordRightExtend,
                                          Command::VCHome,
                                          Command::VCHomeExtend,
                                          Command::LineEnd,
                                          Command::LineEndExtend,
                                          Command::DocumentStart,
                                          Command::DocumentStartExtend,
                                          Command::DocumentEnd,
                                          Command::DocumentEndExtend,
                                          Command::PageUp,
                                          Command::PageUpExtend,
                                          Command::PageDown,
                                          Command::PageDownExtend,
                                          Command::Delete,
                                          Command::DeleteBack,
                                          Command::DeleteWordLeft,
                                          Command::DeleteWordRight,
                                          Command::SelectAll,
                                          Command::SelectionCut,
                                          Command::SelectionCopy,
                                          Command::Paste,
                                          Command::Newline,
                                          Command::Tab,
                                          Command::Undo,
                                          Command::Redo,
                                          Command::ZoomIn,
                                          Command::ZoomOut,
                                          Command::EditToggleOvertype};

constexpr Qt::KeyboardModifiers kCommandModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

// Control and Alt together are the AltGr of some keyboards, which makes characters.
bool MakesCharacters(Qt::KeyboardModifiers modifiers) {
  const Qt::KeyboardModifiers held = modifiers & kCommandModifiers;
  return held == Qt::NoModifier || held == (Qt::ControlModifier | Qt::AltModifier);
}

int FirstPrintable(const QString& text) {
  const QList<uint> codePoints = text.toUcs4();
  if (codePoints.isEmpty() || !QChar::isPrint(codePoints.front())) return 0;
  return static_cast<int>(codePoints.front());
}

}  // namespace

void KeepOrdinaryKeys(QsciScintilla& pane) {
  for (QsciCommand* command : pane.standardCommands()->commands()) {
    if (std::find(kOrdinaryCommands.begin(), kOrdinaryCommands.end(), command->command()) !=
        kOrdinaryCommands.end()) {
      continue;
    }
    command->setKey(0);
    command->setAlternateKey(0);
  }
  pane.standardCommands()
      ->find(Command::Redo)
      ->setAlternateKey(QKeyCombination(Qt::CTRL | Qt::SHIFT, Qt::Key_Z).toCombined());
  // The plus of many keyboards is the equals key with Shift.
  pane.standardCommands()
      ->find(Command::ZoomIn)
      ->setAlternateKey(QKeyCombination(Qt::CTRL, Qt::Key_Equal).toCombined());
}

int BoundCommand(QsciScintilla& pane, const QKeyEvent& key) {
  const bool keypadEnter = key.key() == Qt::Key_Enter;
  Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
  if (key.key() == Qt::Key_Plus) modifiers &= ~Qt::KeyboardModifiers(Qt::ShiftModifier);
  const QKeyCombination keys(modifiers,
                             keypadEnter ? Qt::Key_Return : static_cast<Qt::Key>(key.key()));
  // The component has no key for this one.
  if (keys == QKeyCombination(Qt::CTRL, Qt::Key_0)) return QsciScintillaBase::SCI_SETZOOM;
  const QsciCommand* command = pane.standardCommands()->boundTo(keys.toCombined());
  return command == nullptr ? 0 : command->command();
}

int TypedCharacter(const QKeyEvent& key) {
  if (!MakesCharacters(key.modifiers())) return 0;
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return '\r';
    case Qt::Key_Backspace:
      return '\b';
    case Qt::Key_Tab:
      return '\t';
    default:
      return FirstPrintable(key.text());
  }
}

}  // namespace tagsmith
