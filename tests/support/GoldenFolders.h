#pragma once

#include <filesystem>
#include <functional>

#include "support/RunningProgram.h"

namespace tagsmith {

/// Runs the edits that lie as folders in `golden`, each in a program of its own that `prepare` has
/// put its files and subsystems into before the start. In a folder lie `before`, the text with its
/// selection marked as in MarkedText, `command`, the user's actions, and `after`. All three hold
/// exact bytes, UTF-8. One undo has to bring the text before back, and the clipboard its text.
///
/// `command` has one action a line, from top to bottom; a question's answer stands before the
/// action that asks. "\n" in a line is a line break (CR LF); blanks at a line's end count.
///
///     ask PROMPT|TITLE|INITIAL|ANSWER      the next input box
///     msgbox PROMPT|FLAGS|TITLE|ANSWER     the next message box; flags and answer are numbers
///     colour FF8000, colour cancel         the next colour dialog: red, green, blue
///     form frmName ... end                 the next modal form; what the user does in it between
///     click cmdName, press cmdName(2)      a button or a menu entry, with its index if it has one
///     type TEXT, tab                       keys into the pane
///     drop NAME                            the file c:\art\NAME onto the pane
///     symbol TEXT, sizes                   the comment symbol is TEXT, pictures get their sizes
///     no-undo                              undo has to leave the text after; the first line
///
/// and in a form:
///
///     type txtName TEXT                    keys into the field
///     paste txtName TEXT                   the field's whole text; also `edit` for combo boxes
///     choose lstName TEXT                  the item TEXT of a list or combo box
///     check chkName, option optName(1)     a click on it
///     slide sldName 5
///     cell 2 3                             row and column of MyTable, counted from 1
///     enter txtName                        the Enter key in the field
///     close                                the title bar's button
void RunGoldenFolders(const std::filesystem::path& golden,
                      const std::function<void(RunningProgram&)>& prepare);

}  // namespace tagsmith
