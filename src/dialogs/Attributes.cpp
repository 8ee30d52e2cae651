#include "dialogs/Attributes.h"

#include "core/general1.h"

namespace tagsmith::dialogs {

void AppendAttribute(std::string& tag, std::string_view name, std::string_view field) {
  tag.append(" ").append(name).append("=\"").append(Trim(field)).append("\"");
}

void AppendFilled(std::string& tag, std::initializer_list<Attribute> attributes) {
  for (const Attribute& attribute : attributes) {
    if (!attribute.field.empty()) AppendAttribute(tag, attribute.name, attribute.field);
  }
}

void AppendColour(std::string& tag, std::string_view name, Colour colour) {
  AppendAttribute(tag, name, "#" + ColourText(colour));
}

std::string ColourText(Colour colour) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (int index = 1; index <= 3; ++index) {
    const auto byte = static_cast<std::size_t>(GetColorByte(colour, index) & 0xFF);
    text += kDigits[byte / kDigits.size()];
    text += kDigits[byte % kDigits.size()];
  }
  return text;
}

}  // namespace tagsmith::dialogs
