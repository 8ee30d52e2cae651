#include "services/rtf/HtmlWriter.h"

#include <utility>

#include "services/rtf/DeferredTags.h"
#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

constexpr std::string_view kStyleSheet =
    "h1,h2,h3,h4,h5,h6,p{margin:0;font-size:1em;font-weight:normal}\r\n"
    "ul,ol{margin:0;padding-left:36pt}\r\n"
    "sup,sub{line-height:0}\r\n"
    "table{border-collapse:collapse}\r\n"
    "td{padding:0 5.4pt;text-align:left;vertical-align:top;font-weight:normal}\r\n"
    ".left-out{color:#666;border:1px dashed #999}\r\n";

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

}  // namespace

HtmlWriter::HtmlWriter(const PageOptions& options)
    : options_(options),
      styles_(options.fontName),
      pictures_(options.stem),
      inlines_(styles_, targets_, pictures_, notes_),
      body_(inlines_) {}

void HtmlWriter::AddFont(int number, std::string_view name, std::string_view family) {
  styles_.AddFont(number, name, family);
}

void HtmlWriter::AddLink(int number, std::string_view target) { targets_.AddLink(number, target); }

void HtmlWriter::AddPicture(int number, Picture&& picture) {
  pictures_.Add(number, std::move(picture));
}

void HtmlWriter::AddParagraph(const Paragraph& paragraph) { Current().AddParagraph(paragraph); }

void HtmlWriter::EndCell(int depth) { Current().EndCell(depth); }

void HtmlWriter::EndRow(int depth, const RowFormat& format) { Current().EndRow(depth, format); }

void HtmlWriter::BeginNote(int number) {
  note_.emplace(inlines_);
  noteNumber_ = number;
}

void HtmlWriter::EndNote() {
  if (!note_) return;
  notes_.Add(noteNumber_, note_->Take());
  note_.reset();
}

void HtmlWriter::End() {
  EndNote();
  std::string markup = body_.Take();
  notes_.AppendSection(markup);
  styles_.ChoosePageFont();
  std::string rules;
  const StartTags tags{styles_.StartTags(rules), targets_.StartTags()};
  std::string& html = page_.html;
  html.reserve(markup.size() + kStyleSheet.size() * 2);
  AppendHead(html, rules);
  html += "<body>\r\n";
  AppendResolved(html, markup, tags);
  html += "</body>\r\n</html>\r\n";
  page_.pictures = pictures_.TakeFiles();
}

void HtmlWriter::AppendHead(std::string& html, std::string_view rules) {
  html += "<!DOCTYPE html>\r\n<html>\r\n<head>\r\n<meta charset=\"utf-8\">\r\n";
  if (!options_.generator.empty()) {
    html += "<meta name=\"generator\" content=\"";
    AppendEscaped(html, options_.generator);
    html += "\">\r\n";
  }
  html += "<title>";
  AppendEscaped(html, Title());
  html += "</title>\r\n<style>\r\nbody{";
  html += styles_.PageFont();
  html += "}\r\n";
  html += kStyleSheet;
  html += rules;
  html += "</style>\r\n</head>\r\n";
}

// A page must have a title that is not empty.
std::string_view HtmlWriter::Title() const {
  for (const std::string* title : {&title_, &options_.title, &options_.stem}) {
    if (!IsBlank(*title)) return *title;
  }
  return "Untitled";
}

}  // namespace tagsmith::rtf
