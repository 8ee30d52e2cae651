#include "services/rtf/Tokenizer.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tagsmith::rtf {
namespace {

enum CharacterClass : std::uint8_t { kIgnored, kPrintable, kHigh, kTab, kBackslash, kOpen, kClose };

constexpr std::array<std::uint8_t, 256> MakeClasses() {
  std::array<std::uint8_t, 256> classes{};
  for (std::size_t byte = 0x20; byte < 0x7F; ++byte) classes[byte] = kPrintable;
  for (std::size_t byte = 0x80; byte < 0x100; ++byte) classes[byte] = kHigh;
  classes['\t'] = kTab;
  classes['\\'] = kBackslash;
  classes['{'] = kOpen;
  classes['}'] = kClose;
  return classes;
}

constexpr std::array<std::uint8_t, 256> kClasses = MakeClasses();

std::uint8_t ClassOf(char character) { return kClasses[static_cast<unsigned char>(character)]; }

bool IsLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

}  // namespace

Token Tokenizer::Next() {
  while (position_ < rtf_.size()) {
    switch (ClassOf(rtf_[position_])) {
      case kPrintable:
        return Run(TokenKind::kText, kPrintable);
      case kHigh:
        return Run(TokenKind::kBytes, kHigh);
      case kTab:
        return Symbol();
      case kOpen:
        ++position_;
        return {TokenKind::kGroupStart, {}};
      case kClose:
        ++position_;
        return {TokenKind::kGroupEnd, {}};
      case kBackslash: {
        ++position_;
        Token token;
        if (ReadControl(token)) return token;
        break;
      }
      default:
        ++position_;
    }
  }
  return {};
}

Token Tokenizer::Run(TokenKind kind, std::uint8_t characterClass) {
  const std::size_t start = position_;
  while (position_ < rtf_.size() && ClassOf(rtf_[position_]) == characterClass) ++position_;
  return {kind, rtf_.substr(start, position_ - start)};
}

Token Tokenizer::Symbol() { return {TokenKind::kSymbol, rtf_.substr(position_++, 1)}; }

bool Tokenizer::ReadControl(Token& token) {
  if (position_ == rtf_.size()) return false;
  if (rtf_[position_] == '\'') {
    ++position_;
    return ReadHexByte(token);
  }
  if (IsLetter(rtf_[position_])) {
    ReadWord(token);
  } else {
    token = Symbol();
  }
  return true;
}

bool Tokenizer::ReadHexByte(Token& token) {
  if (rtf_.size() - position_ < 2) return false;
  const int high = HexDigit(rtf_[position_]);
  const int low = HexDigit(rtf_[position_ + 1]);
  if (high < 0 || low < 0) return false;
  position_ += 2;
  token = {TokenKind::kHexByte, {}, high * 16 + low, true};
  return true;
}

void Tokenizer::ReadWord(Token& token) {
  const std::size_t start = position_;
  while (position_ < rtf_.size() && IsLetter(rtf_[position_])) ++position_;
  token.kind = TokenKind::kWord;
  token.text = rtf_.substr(start, position_ - start);
  ReadParameter(token);
  if (position_ < rtf_.size() && rtf_[position_] == ' ') ++position_;
  if (token.text == "bin") ReadBinary(token);
}

void Tokenizer::ReadParameter(Token& token) {
  std::size_t digits = position_;
  const bool isNegative = digits < rtf_.size() && rtf_[digits] == '-';
  if (isNegative) ++digits;
  if (digits == rtf_.size() || !IsDigit(rtf_[digits])) return;

  constexpr std::int64_t kLimit = std::numeric_limits<int>::max();
  std::int64_t value = 0;
  for (; digits < rtf_.size() && IsDigit(rtf_[digits]); ++digits) {
    value = std::min(kLimit, value * 10 + (rtf_[digits] - '0'));
  }
  position_ = digits;
  token.parameter = static_cast<int>(isNegative ? -value : value);
  token.hasParameter = true;
}

// A count that leads past the end of the file is damage: what follows is read as usual.
void Tokenizer::ReadBinary(Token& token) {
  const auto wanted = static_cast<std::size_t>(std::max(0, token.parameter));
  const bool isThere = wanted <= rtf_.size() - position_;
  token.kind = TokenKind::kBinary;
  token.text = rtf_.substr(position_, isThere ? wanted : 0);
  position_ += token.text.size();
}

}  // namespace tagsmith::rtf
