#pragma once

class QApplication;

namespace tagsmith {

/// Gives the program its name, desktop entry and icon. To be called once, before the first window.
/// Style and palette are the platform theme's; a display without one is light and Fusion.
void SetUpAppearance(QApplication& application);

}  // namespace tagsmith
