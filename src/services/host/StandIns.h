#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tagsmith {

/// An ASCII character that a text must not hold, and the private-use character written for it.
struct StandIn {
  char byte;
  char32_t character;
};

/// `bytes` as valid UTF-8. Each byte among `standIns` becomes its character, and each byte that is
/// no UTF-8 (0x80 to 0xFF) the character U+F780 plus the byte: U+F800 to U+F87F. Where `bytes`
/// holds one of those characters itself, its own bytes are written in that way, so that no two byte
/// strings give the same text; likewise U+FEFF, which readers drop as a byte order mark.
std::string ToStandIns(std::string_view bytes, std::span<const StandIn> standIns = {});

/// The bytes that `ToStandIns` made `text` from.
std::string FromStandIns(std::string_view text, std::span<const StandIn> standIns = {});

}  // namespace tagsmith
