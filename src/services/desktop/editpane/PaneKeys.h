#pragma once

class QKeyEvent;
class QsciScintilla;

namespace tagsmith {

/// Leaves the pane the keys of an ordinary text field and takes away its others: they belong to the
/// menus, or do what nobody would expect of them.
void KeepOrdinaryKeys(QsciScintilla& pane);

/// The Scintilla command that a key stands for in the pane, 0 for none.
int BoundCommand(QsciScintilla& pane, const QKeyEvent& key);

/// The code point of the character that a key is about to make: 8 Backspace, 9 Tab, 13 Enter; 0
/// for a key that makes none.
int TypedCharacter(const QKeyEvent& key);

}  // namespace tagsmith
