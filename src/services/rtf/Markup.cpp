#include "services/rtf/Markup.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace tagsmith::rtf {
namespace {

constexpr std::string_view kNoBreakSpace = "&nbsp;";
constexpr std::string_view kLowerHexDigits = "0123456789abcdef";
constexpr std::string_view kUpperHexDigits = "0123456789ABCDEF";

enum class ByteKind : std::uint8_t { kPlain, kBlank, kSpecial };

// Special are all bytes that markup characters or characters without a place in a page begin with.
constexpr std::array<ByteKind, 256> kByteKinds = [] {
  std::array<ByteKind, 256> kinds{};
  for (std::size_t i = 0; i < ' '; ++i) kinds[i] = ByteKind::kSpecial;
  kinds[' '] = ByteKind::kBlank;
  for (const std::size_t byte : {0x22U, 0x26U, 0x3CU, 0x3EU, 0x7FU})
    kinds[byte] = ByteKind::kSpecial;
  kinds[0xC2] = ByteKind::kSpecial;                                        // U+0080 to U+00BF
  for (std::size_t i = 0xEF; i < 256; ++i) kinds[i] = ByteKind::kSpecial;  // U+F000 and above
  return kinds;
}();

unsigned char ByteAt(std::string_view text, std::size_t position) {
  return position < text.size() ? static_cast<unsigned char>(text[position]) : 0;
}

// Whether three bytes from `position` on are the last of U+nFFFE or U+nFFFF, or U+FDD0 to U+FDEF.
bool IsNoncharacter(std::string_view text, std::size_t position, std::size_t length) {
  const unsigned char last = ByteAt(text, position + length - 1);
  const unsigned char middle = ByteAt(text, position + length - 2);
  if (length == 3 && middle == 0xB7 && last >= 0x90 && last <= 0xAF) return true;
  const bool endsPlane = length == 3 || (ByteAt(text, position + 1) & 0x0FU) == 0x0F;
  return endsPlane && middle == 0xBF && last >= 0xBE;
}

// Writes the character at `position`, whose byte is special, in its way. Returns its length.
std::size_t AppendSpecial(std::string& out, std::string_view text, std::size_t position) {
  const unsigned char lead = ByteAt(text, position);
  switch (lead) {
    case '&':
      out += "&amp;";
      return 1;
    case '<':
      out += "&lt;";
      return 1;
    case '>':
      out += "&gt;";
      return 1;
    case '"':
      out += "&quot;";
      return 1;
    default:
      break;
  }
  if (lead < 0x80) return 1;
  if (lead == 0xC2) {
    const unsigned char next = ByteAt(text, position + 1);
    if (next == 0xA0) {
      out += kNoBreakSpace;
    } else if (next > 0xA0) {
      out += text.substr(position, 2);
    }
    return 2;
  }
  const std::size_t length = lead < 0xF0 ? 3 : 4;
  if (!IsNoncharacter(text, position, length)) out += text.substr(position, length);
  return length;
}

bool IsUnreserved(unsigned char byte) {
  return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
         (byte >= 'a' && byte <= 'z') || byte == '-' || byte == '.' || byte == '_' || byte == '~';
}

}  // namespace

void AppendEscaped(std::string& out, std::string_view text) {
  std::size_t written = 0;
  std::size_t i = 0;
  while (i < text.size()) {
    if (kByteKinds[ByteAt(text, i)] != ByteKind::kSpecial) {
      ++i;
      continue;
    }
    out += text.substr(written, i - written);
    i += AppendSpecial(out, text, i);
    written = i;
  }
  if (written < text.size()) out += text.substr(written);
}

void AppendText(std::string& out, std::string_view text, bool& afterBlank) {
  std::size_t written = 0;
  std::size_t i = 0;
  bool blank = afterBlank;
  while (i < text.size()) {
    const ByteKind kind = kByteKinds[ByteAt(text, i)];
    if (kind == ByteKind::kPlain || (kind == ByteKind::kBlank && !blank)) {
      blank = kind == ByteKind::kBlank;
      ++i;
      continue;
    }
    out += text.substr(written, i - written);
    if (kind == ByteKind::kBlank) {
      out += kNoBreakSpace;
      ++i;
    } else {
      i += AppendSpecial(out, text, i);
    }
    blank = false;
    written = i;
  }
  if (written < text.size()) out += text.substr(written);
  afterBlank = blank;
}

bool IsAllLeftOut(std::string_view text) {
  std::string shown;
  std::size_t i = 0;
  while (i < text.size() && shown.empty()) {
    if (kByteKinds[ByteAt(text, i)] != ByteKind::kSpecial) return false;
    i += AppendSpecial(shown, text, i);
  }
  return shown.empty();
}

void AppendNumber(std::string& out, std::int64_t number) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  out.append(digits.data(), end);
}

void AppendPoints(std::string& out, std::int64_t twips) {
  if (twips < 0) {
    out += '-';
    twips = -twips;
  }
  AppendNumber(out, twips / 20);
  const auto hundredths = static_cast<std::size_t>(twips % 20 * 5);
  if (hundredths != 0) {
    out += '.';
    out += kLowerHexDigits[hundredths / 10];
    if (hundredths % 10 != 0) out += kLowerHexDigits[hundredths % 10];
  }
  out += "pt";
}

void AppendColour(std::string& out, Colour colour) {
  out += '#';
  for (int shift = 20; shift >= 0; shift -= 4) {
    out +=
        kLowerHexDigits[(static_cast<std::uint32_t>(colour) >> static_cast<unsigned>(shift)) & 15U];
  }
}

void AppendCssString(std::string& out, std::string_view name) {
  constexpr std::string_view kEscapes = "\"'\\<>&";
  out += '\'';
  for (std::size_t i = 0; i < name.size(); ++i) {
    const unsigned char byte = ByteAt(name, i);
    if (kEscapes.find(name[i]) != std::string_view::npos) {
      out += '\\';
      out += kLowerHexDigits[byte >> 4U];
      out += kLowerHexDigits[byte & 15U];
      out += ' ';
    } else if (kByteKinds[byte] == ByteKind::kSpecial) {
      i += AppendSpecial(out, name, i) - 1;
    } else {
      out += name[i];
    }
  }
  out += '\'';
}

void AppendPercentEncoded(std::string& out, std::string_view bytes) {
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsUnreserved(byte)) {
      out += c;
    } else {
      out += '%';
      out += kUpperHexDigits[byte >> 4U];
      out += kUpperHexDigits[byte & 15U];
    }
  }
}

void StyleAttribute::Begin(std::string_view property) {
  out_ += isOpen_ ? ";" : " style=\"";
  isOpen_ = true;
  out_ += property;
  out_ += ':';
}

void StyleAttribute::Add(std::string_view property, std::string_view value) {
  Begin(property);
  out_ += value;
}

void StyleAttribute::AddPoints(std::string_view property, std::int64_t twips) {
  Begin(property);
  AppendPoints(out_, twips);
}

void StyleAttribute::AddColour(std::string_view property, Colour colour) {
  Begin(property);
  AppendColour(out_, colour);
}

void StyleAttribute::Close() {
  if (isOpen_) out_ += '"';
}

}  // namespace tagsmith::rtf
