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

/// Puts tags in the place of marks.
class TagWriter {
 public:
  /// `linkRoom` is how many bytes the start tags of links may take together.
  TagWriter(std::string& out, const StartTags& tags, std::size_t linkRoom)
      : out_(out), tags_(tags), linkRoom_(linkRoom) {}

  void Append(std::string_view mark);

 private:
  void AppendLink(bool isStart, const std::string& start);

  std::string& out_;
  const StartTags& tags_;
  std::size_t linkRoom_;
  bool isLinkOpen_ = false;
};

void TagWriter::Append(std::string_view mark) {
  const bool isSpan = mark[2] == static_cast<char>(Deferred::kSpan);
  std::uint32_t number = 0;
  std::memcpy(&number, mark.data() + 3, sizeof number);
  const bool isStart = mark[1] == kStartMark;
  if (!isSpan) {
    AppendLink(isStart, tags_.links[number]);
  } else if (!tags_.spans[number].empty()) {
    out_ += isStart ? std::string_view(tags_.spans[number]) : "</span>";
  }
}

// Links never stand in links.
void TagWriter::AppendLink(bool isStart, const std::string& start) {
  if (!isStart) {
    if (isLinkOpen_) out_ += "</a>";
    isLinkOpen_ = false;
  } else if (!start.empty() && start.size() <= linkRoom_) {
    linkRoom_ -= start.size();
    out_ += start;
    isLinkOpen_ = true;
  }
}

// Enough for every link once, and for as much again as no page of a sound document needs.
std::size_t LinkRoom(std::string_view markup, const StartTags& tags) {
  constexpr std::size_t kTimesMarkup = 16;
  constexpr std::size_t kLeast = 65536;
  std::size_t room = kLeast + kTimesMarkup * markup.size();
  for (const std::string& link : tags.links) room += link.size();
  return room;
}

}  // namespace

void AppendDeferredStart(std::string& out, Deferred kind, std::uint32_t number) {
  AppendMark(out, kStartMark, kind, number);
}

void AppendDeferredEnd(std::string& out, Deferred kind, std::uint32_t number) {
  AppendMark(out, kEndMark, kind, number);
}

void AppendResolved(std::string& out, std::string_view markup, const StartTags& tags) {
  TagWriter writer(out, tags, LinkRoom(markup, tags));
  std::size_t position = 0;
  for (;;) {
    const std::size_t mark = markup.find(kMarkLead, position);
    if (mark == std::string_view::npos) break;
    out += markup.substr(position, mark - position);
    writer.Append(markup.substr(mark, kMarkLength));
    position = mark + kMarkLength;
  }
  out += markup.substr(position);
}

}  // namespace tagsmith::rtf
