#pragma once

#include <QRect>
#include <QSize>
#include <Qt>

#include "services/Form.h"

class QScreen;
class QWidget;

namespace tagsmith {

/// The window flags for a form's border. `modal` windows are dialogs, whatever their border.
Qt::WindowFlags FlagsFor(const Form& form, bool modal);

/// What a window may cover of `screen`, its frame left out.
QSize RoomFor(const QWidget& window);

/// Moves a window that is not on the screen yet to the middle of `above`, or of the screen when
/// that is null or hidden; no edge leaves the screen.
void Centre(QWidget& window, const QWidget* above);

/// Moves a window that is not on the screen yet to the upper right corner of its screen, where one
/// that stays above the others covers the least of a text.
void PutIntoCorner(QWidget& window);

/// Keeps the window above all others, or ends that; one on the screen stays where it is and keeps
/// the keyboard.
void SetStaysOnTop(QWidget& window, bool onTop);

}  // namespace tagsmith
