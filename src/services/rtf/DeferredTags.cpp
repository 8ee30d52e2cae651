#include "services/rtf/DeferredTags.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace tagsmith::rtf {
namespace {

constexpr char kStartMark = '\x01';
constexpr char kEndMark = '\x02';
constexpr char kMarkLead = '\x03';

// Lead, start or end, kind, number.
constexpr std::size_t kMarkLength = 3 + sizeof(std::uint32_t);

void AppendMark(std::string& out, char mark, Deferred kind, std::uint32_t number) {
  std::array<char, kMarkLength> bytes{kMarkLead, mark, static_cast<char>(kind)};
  std::memcpy(bytes.data() + 3, &number, sizeof number);
  out.append(bytes.data(), bytes.size());
}

void AppendTag(std::string& out, std::string_view mark, const StartTags& tags) {
  const bool isSpan = mark[2] == static_cast<char>(Deferred::kSpan);
  std::uint32_t number = 0;
  std::memcpy(&number, mark.data() + 3, sizeof number);
  const std::string& start = isSpan ? tags.spans[number] : tags.links[number];
  if (start.empty()) return;
  if (mark[1] == kStartMark) {
    out += start;
  } else {
    out += isSpan ? "</span>" : "</a>";
  }
}

}  // namespace

void AppendDeferredStart(std::string& out, Deferred kind, std::uint32_t number) {
  AppendMark(out, kStartMark, kind, number);
}

void AppendDeferredEnd(std::string& out, Deferred kind, std::uint32_t number) {
  AppendMark(out, kEndMark, kind, number);
}

void AppendResolved(std::string& out, std::string_view markup, const StartTags& tags) {
  std::size_t position = 0;
  for (;;) {
    const std::size_t mark = markup.find(kMarkLead, position);
    if (mark == std::string_view::npos) break;
    out += markup.substr(position, mark - position);
    AppendTag(out, markup.substr(mark, kMarkLength), tags);
    position = mark + kMarkLength;
  }
  out += markup.substr(position);
}

}  // namespace tagsmith::rtf
