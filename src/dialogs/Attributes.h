#pragma once

#include <string>
#include <string_view>

#include "services/Units.h"

namespace tagsmith::dialogs {

// What the tags of all dialogs are made of. Texts are UTF-8 and go in as they are: nothing is
// escaped.

/// Appends a blank, the name and the value: ` Name="value"`. The value is the field's text without
/// the blanks at its ends.
void AppendAttribute(std::string& tag, std::string_view name, std::string_view field);

/// As `AppendAttribute`, but nothing for a field that was left empty; blanks alone count as filled.
void AppendIfFilled(std::string& tag, std::string_view name, std::string_view field);

/// Appends ` Name="#RRGGBB"`.
void AppendColour(std::string& tag, std::string_view name, Colour colour);

/// Six upper-case hexadecimal digits: red, green, blue.
std::string ColourText(Colour colour);

}  // namespace tagsmith::dialogs
