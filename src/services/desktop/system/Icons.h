#pragma once

#include <QIcon>
#include <QString>

namespace tagsmith {

/// The icon of the button `name` ("cmdBold"), drawn crisply at every size and device pixel ratio in
/// the colours that fit the application's palette at the moment of painting. Null if there is none
/// of that name. Nothing is read before it is first painted.
QIcon ButtonIcon(const QString& name);

/// The program's own icon, the same on light and dark.
QIcon ApplicationIcon();

}  // namespace tagsmith
