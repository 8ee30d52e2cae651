#include "services/host/StandIns.h"

#include <algorithm>
#include <optional>

#include "services/Utf8.h"

namespace tagsmith {
namespace {

constexpr char32_t kStrayByteBase = 0xF780;
constexpr char32_t kByteOrderMark = 0xFEFF;

void AppendStrayBytes(std::string& text, std::string_view bytes) {
  for (const char byte : bytes) {
    AppendUtf8(text, kStrayByteBase + static_cast<unsigned char>(byte));
  }
}

// The byte that `character` stands for, if it is a stand-in at all.
std::optional<char> StoodForBy(char32_t character, std::span<const StandIn> standIns) {
  if (character >= kStrayByteBase + 0x80 && character <= kStrayByteBase + 0xFF) {
    return static_cast<char>(character - kStrayByteBase);
  }
  const auto found = std::ranges::find(standIns, character, &StandIn::character);
  return found == standIns.end() ? std::nullopt : std::optional(found->byte);
}

bool IsAscii(std::string_view text) {
  return std::ranges::none_of(text, [](char byte) { return (byte & 0x80) != 0; });
}

// Whether the bytes of `character` cannot stand in a text as they are.
bool IsSpeltByteByByte(const DecodedChar& character, std::span<const StandIn> standIns) {
  return character.length == 0 || character.codePoint == kByteOrderMark ||
         StoodForBy(character.codePoint, standIns);
}

}  // namespace

std::string ToStandIns(std::string_view bytes, std::span<const StandIn> standIns) {
  if (IsAscii(bytes) && std::ranges::none_of(standIns, [bytes](const StandIn& standIn) {
        return bytes.find(standIn.byte) != std::string_view::npos;
      })) {
    return std::string(bytes);
  }
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t i = 0; i < bytes.size();) {
    const DecodedChar character = DecodeUtf8(bytes, i);
    const std::string_view piece = bytes.substr(i, std::max<std::size_t>(character.length, 1));
    const auto standIn = std::ranges::find(standIns, piece.front(), &StandIn::byte);
    if (standIn != standIns.end()) {
      AppendUtf8(text, standIn->character);
    } else if (IsSpeltByteByByte(character, standIns)) {
      AppendStrayBytes(text, piece);
    } else {
      text += piece;
    }
    i += piece.size();
  }
  return text;
}

std::string FromStandIns(std::string_view text, std::span<const StandIn> standIns) {
  if (IsAscii(text)) return std::string(text);
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const DecodedChar character = DecodeUtf8(text, i);
    const std::string_view piece = text.substr(i, std::max<std::size_t>(character.length, 1));
    if (const auto byte = StoodForBy(character.codePoint, standIns)) {
      bytes += *byte;
    } else {
      bytes += piece;
    }
    i += piece.size();
  }
  return bytes;
}

}  // namespace tagsmith
