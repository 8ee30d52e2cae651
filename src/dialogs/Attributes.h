#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "services/Units.h"

namespace tagsmith::dialogs {

// What the tags of all dialogs are made of. Texts are UTF-8 and go in as they are: nothing is
// escaped.

/// Appends a blank, the name and the value: ` Name="value"`. The value is the field's text without
/// the blanks at its ends.
void AppendAttribute(std::string& tag, std::string_view name, std::string_view field);

/// A name and what stands in its field.
struct Attribute {
  std::string_view name;
  std::string_view field;
};

/// As `AppendAttribute` for each, but nothing for a field that was left empty; blanks alone count
/// as filled.
void AppendFilled(std::string& tag, std::initializer_list<Attribute> attributes);

/// Appends ` Name="#RRGGBB"`.
void AppendColour(std::string& tag, std::string_view name, Colour colour);

/// Six upper-case hexadecimal digits: red, green, blue.
std::string ColourText(Colour colour);

}  // namespace tagsmith::dialogs
