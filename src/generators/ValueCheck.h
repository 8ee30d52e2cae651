#pragma once

#include <cstdint>
#include <string>

namespace tagsmith::generators {

enum class ScriptLanguage : std::uint8_t { kJavaScript, kVbScript };

enum class Comparison : std::uint8_t {
  kEqualTo,
  kNotEqualTo,
  kGreaterThan,
  kLessThan,
  kGreaterOrEqual,
  kLessOrEqual,
};

/// A test of a form control's value: what the user has filled in, as typed.
struct ValueCheck {
  std::string name;  ///< The control as the script reaches it.
  Comparison comparison = Comparison::kEqualTo;
  std::string value;    ///< Source text: a string brings its own quotes.
  std::string message;  ///< Shown when the comparison holds.
};

/// The statement that makes the test, lines ended by CR LF. Blanks at the ends of the fields are
/// dropped and nothing is escaped; an empty value stands for the empty string.
std::string CheckStatement(const ValueCheck& check, ScriptLanguage language);

}  // namespace tagsmith::generators
