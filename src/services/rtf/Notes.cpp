#include "services/rtf/Notes.h"

#include <utility>

#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

constexpr std::string_view kParagraphEnd = "</p>\r\n";

}  // namespace

void Notes::Add(int number, std::string&& markup) {
  const auto place = static_cast<std::int64_t>(notes_.size()) + 1;
  if (!notes_.try_emplace(number, Note{place, false}).second) return;
  std::string wayBack = " <a href=\"#note-mark-";
  AppendNumber(wayBack, place);
  wayBack += "\">\xE2\x86\xA9</a>";

  items_ += "<li id=\"note-";
  AppendNumber(items_, place);
  items_ += "\">";
  items_ += markup;
  if (markup.ends_with(kParagraphEnd)) {
    items_.insert(items_.size() - kParagraphEnd.size(), wayBack);
  } else {
    items_ += "<p>" + wayBack.substr(1);
    items_ += kParagraphEnd;
  }
  items_ += "</li>";
  items_ += kLineEnd;
}

std::string Notes::Mark(int number) {
  const auto found = notes_.find(number);
  if (found == notes_.end()) return {};
  Note& note = found->second;
  const std::string place = std::to_string(note.place);
  // Only the first of several marks can be what the note leads back to.
  const std::string id = note.isMarked ? "" : " id=\"note-mark-" + place + '"';
  note.isMarked = true;
  return "<sup><a" + id + " href=\"#note-" + place + "\">" + place + "</a></sup>";
}

void Notes::AppendSection(std::string& out) const {
  if (notes_.empty()) return;
  out += "<section class=\"notes\">\r\n<hr>\r\n<ol>\r\n";
  out += items_;
  out += "</ol>\r\n</section>\r\n";
}

}  // namespace tagsmith::rtf
