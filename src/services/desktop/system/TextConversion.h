#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tagsmith {

/// The one border between the system's text (UTF-8) and Qt's (UTF-16). Valid UTF-8 comes back byte
/// for byte, NUL and a leading byte order mark included; invalid bytes become U+FFFD.
QString ToQString(std::string_view utf8);
std::string FromQString(const QString& text);

}  // namespace tagsmith
