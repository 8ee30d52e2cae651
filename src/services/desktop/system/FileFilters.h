#pragma once

#include <QString>
#include <QStringList>
#include <string_view>

namespace tagsmith {

/// Turns a filter of caption and pattern pairs joined by bars ("Pictures|*.gif;*.jpg|All|*.*") into
/// name filters of a QFileDialog. Patterns match without regard to case, also in a native dialog
/// that tells case apart; "*.*" and "*.exe" (programs carry no extension here) match all files. The
/// dialog must hide the details of name filters to show the bare captions.
QStringList NameFilters(std::string_view filter);

}  // namespace tagsmith
