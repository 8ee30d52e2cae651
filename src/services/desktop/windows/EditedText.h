#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tagsmith {

/// `text` as a multi-line field shows it: every line end is one U+2029.
QString ShownText(std::string_view text);

/// The text after an edit of the field. `before` is what it was, `shown` what the field shows now,
/// with U+2029 for line ends. What the edit left alone keeps its line ends; new ones are CR LF.
std::string MergeEdit(std::string_view before, const QString& shown);

}  // namespace tagsmith
