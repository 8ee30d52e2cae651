#pragma once

#include <string>
#include <string_view>

#include "services/Units.h"

namespace tagsmith {

class Application;
class RichTextBox;

// The small routines that all subsystems share. A path is a text with backslashes between its
// parts; none of these looks at the disk but FileExists.

/// The text without the blanks at its ends; blanks only, no other white space.
std::string_view Trim(std::string_view text);

/// The trimmed path with a backslash behind it; one backslash for an empty path.
std::string AddBackslash(std::string_view path);

/// Whether `path` names a file. Never throws: an empty path and any error give false.
bool FileExists(const Application& application, std::string_view path);

/// The text up to and including the last backslash; empty if there is none.
std::string GetPathOnly(std::string_view path);

/// The text behind the last backslash; empty if there is none.
std::string GetFileNameOnly(std::string_view path);

/// The text before the first dot; empty if there is none.
std::string GetNameBeforeDot(std::string_view name);

/// What `ParsePath` gives.
constexpr int kPathDrive = 1;      ///< The first two characters: "C:".
constexpr int kPathDirectory = 2;  ///< From the third one to the last backslash: "\dir\".
constexpr int kPathFileName = 3;   ///< Behind the last backslash: "page.html".
constexpr int kPathBaseName = 4;   ///< The file name up to its first dot: "page".

/// One part of a path; empty for any other kind, and where the backslash or dot it takes is
/// missing.
std::string ParsePath(std::string_view path, int kind);

/// One byte of a colour value: 1 the lowest, 3 the highest. -1 for any other index, and for what is
/// no colour value.
int GetColorByte(Colour colour, int index);

/// The decimal number with which the text begins, blanks in front passed over; what stands behind
/// it is ignored. 0 for a text that does not begin with one.
double Val(std::string_view text);

/// Prints the whole text of `pane` on the printer of its form's platform, a page at a time, with
/// these margins from the paper's edges. Throws `Error` when the printer fails, and when the
/// margins leave no room for a line.
void PrintRichText(RichTextBox& pane, Twips leftMargin, Twips topMargin, Twips rightMargin,
                   Twips bottomMargin);

}  // namespace tagsmith
