#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Tags that can be decided on at the end of the document only: whether text differs from what most
// of it looks like, whether a bookmark is there. Until then marks hold their places, which begin
// with a control character and so cannot be mistaken for text.

namespace tagsmith::rtf {

enum class Deferred : char { kSpan = 's', kLink = 'l' };

void AppendDeferredStart(std::string& out, Deferred kind, std::uint32_t number);
void AppendDeferredEnd(std::string& out, Deferred kind, std::uint32_t number);

/// The start tags of spans and links by their numbers. An empty one leaves the element out.
struct StartTags {
  std::vector<std::string> spans;
  std::vector<std::string> links;
};

/// Appends `markup` with the tags in place of its marks. Links that would make the page far larger
/// than its markup, since a long address comes again and again, are left out from there on.
void AppendResolved(std::string& out, std::string_view markup, const StartTags& tags);

}  // namespace tagsmith::rtf
