#pragma once

#include <QString>
#include <Qt>
#include <string_view>
#include <vector>

namespace tagsmith {

/// One key pressed and released. `text` is what it types, empty for a command key.
struct KeyStroke {
  int key = 0;
  Qt::KeyboardModifiers modifiers;
  QString text;

  bool operator==(const KeyStroke&) const = default;
};

/// Reads key notation: "^", "%" and "+" hold Control, Alt and Shift for the next character or for
/// a group in round brackets; curly brackets hold a key's name ("{ENTER}") or a character that is
/// to be taken as itself ("{+}"). Throws `Error` for an unknown name and unmatched brackets.
std::vector<KeyStroke> ParseKeys(std::string_view keys);

}  // namespace tagsmith
