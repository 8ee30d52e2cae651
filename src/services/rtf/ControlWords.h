#pragma once

#include <span>
#include <string_view>

namespace tagsmith::rtf {

class Interpreter;

/// A control word as it stands in a file.
struct Control {
  int value;  ///< From the word's row in the table.
  int parameter;
  bool hasParameter;

  /// Whether a toggle such as \b is switched on.
  bool IsOn() const { return !hasParameter || parameter != 0; }
  int ParameterOr(int otherwise) const { return hasParameter ? parameter : otherwise; }
};

/// One control word of Rich Text Format and what it does.
struct ControlWord {
  std::string_view name;
  void (*handle)(Interpreter& interpreter, const Control& control);
  int value = 0;
};

/// The words by what they are about.
std::span<const ControlWord> CharacterWords();
std::span<const ControlWord> TextWords();
std::span<const ControlWord> ParagraphWords();
std::span<const ControlWord> TableWords();
std::span<const ControlWord> ListWords();
std::span<const ControlWord> PictureWords();
std::span<const ControlWord> DestinationWords();

/// The row of the word `name`; null for words that mean nothing to a page.
const ControlWord* FindControlWord(std::string_view name);

}  // namespace tagsmith::rtf
