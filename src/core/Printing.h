#pragma once

#include "services/Units.h"

namespace tagsmith {

class RichTextBox;
class frmMain;

/// Prints the whole text of `pane` on the printer of its form's platform, a page at a time, with
/// these margins from the paper's edges. Throws `Error` when the printer fails, and when the
/// margins leave no room for a line.
void PrintRichText(RichTextBox& pane, Twips leftMargin, Twips topMargin, Twips rightMargin,
                   Twips bottomMargin);

/// Binds the Print command to its menu entry and its button.
void BindPrinting(frmMain& form);

}  // namespace tagsmith
