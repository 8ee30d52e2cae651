#pragma once

#include <cstddef>
#include <string_view>

namespace tagsmith::integration {

/// A piece of text between two gaps.
struct AddressScan {
  bool isAddress = false;
  std::size_t end = 0;  ///< Byte position behind the piece.
};

/// Whether no address goes on over byte `position` of `text` (UTF-8): white space, brackets,
/// quotes, commas and the like.
bool IsAddressGap(std::string_view text, std::size_t position);

/// Whether the piece that begins at byte `position` of `text`, which is no gap, is an address of
/// the web, of mail or in the file system: "http://...", "www...", "ann@host", "c:\x", "/usr/bin",
/// "host.name.tld". A dot between a small letter and a capital is the end of a sentence.
AddressScan ScanAddress(std::string_view text, std::size_t position);

}  // namespace tagsmith::integration
