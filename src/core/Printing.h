#pragma once

namespace tagsmith {

class frmMain;

/// Binds the Print command to its menu entry and its button.
void BindPrinting(frmMain& form);

}  // namespace tagsmith
