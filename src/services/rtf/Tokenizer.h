#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tagsmith::rtf {

enum class TokenKind : std::uint8_t {
  kText,     ///< Printable ASCII.
  kBytes,    ///< Bytes from 128 on.
  kHexByte,  ///< \'hh: the byte is the parameter.
  kWord,     ///< A control word: `text` is its name.
  kSymbol,   ///< A control symbol: `text` is its character. A bare tab counts as one.
  kBinary,   ///< \bin: `text` is its data.
  kGroupStart,
  kGroupEnd,
  kEnd,
};

struct Token {
  TokenKind kind = TokenKind::kEnd;
  std::string_view text;
  int parameter = 0;  ///< Parameters that an int cannot hold are its nearest value.
  bool hasParameter = false;
};

/// Cuts a file into its tokens (Rich Text Format 1.9.1, "RTF Syntax"). Bare line ends and other
/// control characters mean nothing and are passed over, as is a damaged \'hh. Tokens point into the
/// file.
class Tokenizer {
 public:
  explicit Tokenizer(std::string_view rtf) : rtf_(rtf) {}

  /// The next token; `kEnd` again and again once the file is at its end.
  Token Next();

 private:
  Token Run(TokenKind kind, std::uint8_t characterClass);
  Token Symbol();
  bool ReadControl(Token& token);
  bool ReadHexByte(Token& token);
  void ReadWord(Token& token);
  void ReadParameter(Token& token);
  void ReadBinary(Token& token);

  std::string_view rtf_;
  std::size_t position_ = 0;
};

constexpr std::array<std::int8_t, 256> MakeHexDigits() {
  std::array<std::int8_t, 256> digits{};
  digits.fill(-1);
  for (unsigned value = 0; value < 10; ++value) {
    digits['0' + value] = static_cast<std::int8_t>(value);
  }
  for (unsigned value = 10; value < 16; ++value) {
    digits['a' + value - 10] = static_cast<std::int8_t>(value);
    digits['A' + value - 10] = static_cast<std::int8_t>(value);
  }
  return digits;
}

inline constexpr std::array<std::int8_t, 256> kHexDigits = MakeHexDigits();

/// The value of a hexadecimal digit; -1 for any other character.
constexpr int HexDigit(char character) { return kHexDigits[static_cast<unsigned char>(character)]; }

}  // namespace tagsmith::rtf
