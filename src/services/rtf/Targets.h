#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tagsmith::rtf {

/// The address that a page may carry for a link's target (RFC 3986): http, https, mailto, ftp,
/// file, tel, sms, news and relative ones, characters that an address cannot hold percent-encoded;
/// a path with a drive or a server's name becomes a file address. Empty for all others, scripts
/// among them.
std::string SafeAddress(std::string_view target);

/// The links of a document and the bookmarks that they lead to.
class Targets {
 public:
  /// A link whose address is over 2,048 bytes long leads nowhere.
  void AddLink(int number, std::string_view target);

  /// Which of `StartTags` begins link `number`; nothing for one that leads nowhere.
  std::optional<std::uint32_t> LinkOf(int number) const;

  /// The id of a bookmark that stands here; nothing where it has stood already.
  std::optional<std::string> PlaceBookmark(std::string_view name);

  /// The start tags of the links; empty for those to bookmarks that never came.
  std::vector<std::string> StartTags() const;

 private:
  struct Link {
    std::string address;
    std::string bookmark;  ///< The name, for a link inside the page.
  };

  std::string UnusedId(std::string_view name);

  std::unordered_map<int, std::uint32_t> numbers_;
  std::vector<Link> links_;
  std::unordered_map<std::string, std::string> ids_;  ///< Of the bookmarks that have been placed.
  std::unordered_set<std::string> usedIds_;
  std::unordered_map<std::string, int> nextSuffix_;
};

}  // namespace tagsmith::rtf
