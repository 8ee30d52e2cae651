#include "services/rtf/ListWriter.h"

#include <algorithm>
#include <string_view>

#include "services/rtf/BlockStyle.h"
#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

constexpr int kUsualIndent = 720;  // As the page's style sheet has it.
constexpr int kLeastIndent = 240;  // Room for the mark.
constexpr int kLargestIndent = 14400;

bool IsOrdered(Numbering numbering) {
  return numbering != Numbering::kBullet && numbering != Numbering::kHidden;
}

std::string_view TypeAttribute(Numbering numbering) {
  switch (numbering) {
    case Numbering::kUpperRoman:
      return " type=\"I\"";
    case Numbering::kLowerRoman:
      return " type=\"i\"";
    case Numbering::kUpperLetter:
      return " type=\"A\"";
    case Numbering::kLowerLetter:
      return " type=\"a\"";
    case Numbering::kBullet:
    case Numbering::kDecimal:
    case Numbering::kHidden:
      return "";
  }
  return "";
}

}  // namespace

void ListWriter::BeginItem(std::string& out, const ParagraphFormat& format) {
  ListPlace place = format.list;
  place.level = std::clamp(place.level, 0, static_cast<int>(kLevels) - 1);
  const std::int64_t number = NextNumber(place);
  while (!open_.empty() && open_.back().place.level > place.level) CloseLast(out);
  if (!open_.empty() && open_.back().place.level == place.level) {
    const ListPlace& last = open_.back().place;
    if (last.list == place.list && last.numbering == place.numbering) {
      out += "</li>";
      out += kLineEnd;
      open_.back().leftIndent = format.leftIndent;
    } else {
      CloseLast(out);
    }
  }
  if (open_.empty() || open_.back().place.level < place.level) {
    OpenNew(out, place, format.leftIndent, number);
  }
  out += "<li";
  if (format.heading == 0) AppendBlockAttributes(out, format, Indents::kOfList);
  out += '>';
}

bool ListWriter::Continues(std::string& out, const ParagraphFormat& format) {
  if (open_.empty() || format.heading != 0 || format.leftIndent <= 0) return false;
  const auto item = std::find_if(open_.begin(), open_.end(), [&format](const OpenList& list) {
    return list.leftIndent == format.leftIndent;
  });
  if (item == open_.end()) return false;
  const auto depth = static_cast<std::size_t>(item - open_.begin()) + 1;
  while (open_.size() > depth) CloseLast(out);
  return true;
}

void ListWriter::CloseAll(std::string& out) {
  while (!open_.empty()) CloseLast(out);
}

void ListWriter::CloseLast(std::string& out) {
  out += IsOrdered(open_.back().place.numbering) ? "</li>\r\n</ol>" : "</li>\r\n</ul>";
  open_.pop_back();
  if (open_.empty()) out += kLineEnd;
}

void ListWriter::OpenNew(std::string& out, const ListPlace& place, int leftIndent,
                         std::int64_t number) {
  const int outer = open_.empty() ? 0 : open_.back().leftIndent;
  if (!open_.empty()) out += kLineEnd;
  out += IsOrdered(place.numbering) ? "<ol" : "<ul";
  out += TypeAttribute(place.numbering);
  if (IsOrdered(place.numbering) && number != 1) {
    out += " start=\"";
    AppendNumber(out, number);
    out += '"';
  }
  StyleAttribute style(out);
  if (place.numbering == Numbering::kHidden) style.Add("list-style-type", "none");
  const std::int64_t indent = std::int64_t{leftIndent} - outer;
  if (indent >= kLeastIndent && indent <= kLargestIndent && indent != kUsualIndent) {
    style.AddPoints("padding-left", indent);
  }
  style.Close();
  out += '>';
  out += kLineEnd;
  open_.push_back({place, leftIndent});
}

// The number of the next item; the levels under it start anew.
std::int64_t ListWriter::NextNumber(const ListPlace& place) {
  Counters& counters = counters_[place.list];
  const auto level = static_cast<std::size_t>(place.level);
  std::optional<std::int64_t>& counter = counters[level];
  counter = counter ? *counter + 1 : place.start;
  std::fill(counters.begin() + place.level + 1, counters.end(), std::nullopt);
  return *counter;
}

}  // namespace tagsmith::rtf
