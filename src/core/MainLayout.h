#pragma once

namespace tagsmith {

class frmMain;

/// Gives the main form and its controls the places, faces and tool tips that they have before the
/// first resize.
void ApplyMainLayout(frmMain& form);

}  // namespace tagsmith
