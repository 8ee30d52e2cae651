#include "services/TextBox.h"

#include "services/Form.h"
#include "services/Utf8.h"

namespace tagsmith {

TextBox::TextBox(Form& form, std::string name, int index)
    : Control(form, ControlKind::kTextBox, std::move(name), index) {}

void TextBox::SetText(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  Tell(Property::kText);
  Raise(onChange);
}

bool TextBox::UserKeyPress(int keyAscii) {
  Raise(onKeyPress, keyAscii);
  return keyAscii != 0;
}

void TextBox::UserEdit(std::string_view text) {
  if (text == text_) return;
  text_ = text;
  Raise(onChange);
}

void TextBox::Type(std::string_view text) {
  if (!TakesInput()) return;
  for (std::size_t i = 0; i < text.size();) {
    const DecodedChar character = DecodeUtf8(text, i);
    const std::size_t length = character.length == 0 ? 1 : character.length;
    if (UserKeyPress(static_cast<int>(character.codePoint))) {
      SetText(text_ + std::string(text.substr(i, length)));
    }
    i += length;
  }
}

}  // namespace tagsmith
