#include "services/rtf/Body.h"

#include <algorithm>
#include <array>

#include "services/Utf8.h"
#include "services/rtf/ByteCollector.h"

namespace tagsmith::rtf {
namespace {

constexpr std::size_t kMostFlows = 8;
constexpr std::size_t kMostListText = 64;

}  // namespace

Body::Body(DocumentSink& sink) : sink_(sink) { flows_.emplace_back(sink, 0); }

void Body::AddRun(RunKind kind, const CharacterFormat& format) {
  Paragraph& paragraph = Current().paragraph;
  Current().hasContent |= kind != RunKind::kBookmark;
  paragraph.runs.push_back({.kind = kind, .start = paragraph.text.size(), .format = format});
}

void Body::AddText(std::string_view text, const CharacterFormat& format) {
  if (Current().skipsBlanks) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.empty()) return;
    Current().skipsBlanks = false;
  }
  Paragraph& paragraph = Current().paragraph;
  const bool isSame = !paragraph.runs.empty() && paragraph.runs.back().kind == RunKind::kText &&
                      paragraph.runs.back().format == format;
  if (!isSame) AddRun(RunKind::kText, format);
  paragraph.text += text;
  paragraph.runs.back().length += text.size();
}

void Body::AddMark(RunKind kind, const CharacterFormat& format, int number) {
  Current().skipsBlanks = false;
  AddRun(kind, format);
  Current().paragraph.runs.back().number = number;
}

void Body::AddBookmark(std::string_view name) {
  name = name.substr(0, SnapToCharacter(name, kMostNameBytes));
  AddRun(RunKind::kBookmark, {});
  Current().paragraph.text += name;
  Current().paragraph.runs.back().length = name.size();
}

void Body::AddListText(std::string_view text, const CharacterFormat& format) {
  AppendLimited(Current().listText, text, kMostListText);
  Current().listTextFormat = format;
}

void Body::ShowListText() {
  Flow& flow = Current();
  Paragraph& paragraph = flow.paragraph;
  const std::array<Run, 2> mark = {Run{.start = paragraph.text.size(),
                                       .length = flow.listText.size(),
                                       .format = flow.listTextFormat},
                                   Run{.kind = RunKind::kTab, .format = flow.listTextFormat}};
  paragraph.text += flow.listText;
  paragraph.runs.insert(paragraph.runs.begin(), mark.begin(), mark.end());
}

void Body::EndParagraph(const ParagraphFormat& format) {
  Flow& flow = Current();
  const int depth = flow.tables.Limited(format.tableDepth);
  flow.tables.Enter(depth);
  if (!flow.listText.empty() && format.list.list == kAbsent) ShowListText();
  flow.listText.clear();
  flow.skipsBlanks = false;
  flow.hasContent = false;
  flow.paragraph.format = format;
  flow.paragraph.format.tableDepth = flow.tables.DepthAtSink(depth);
  flow.paragraph.format.pageBreakBefore |= flow.breaksPage || flow.breaksSection;
  flow.breaksPage = false;
  flow.breaksSection = false;
  sink_.AddParagraph(flow.paragraph);
  flow.paragraph.text.clear();
  flow.paragraph.runs.clear();
}

void Body::EndStartedParagraph(const ParagraphFormat& format) {
  if (!Current().paragraph.runs.empty()) EndParagraph(format);
  Current().listText.clear();
}

// Bookmarks behind the last paragraph are no paragraph of their own.
void Body::EndLastParagraph(const ParagraphFormat& format) {
  if (Current().hasContent) EndParagraph(format);
}

void Body::EndCell(ParagraphFormat format, int depth) {
  format.tableDepth = depth;
  EndStartedParagraph(format);
  TableTracker& tables = Current().tables;
  if (tables.Limited(depth) > 0) tables.EndCell(tables.Limited(depth));
}

// Bookmarks behind the last cell wait for the next one.
void Body::EndRow(ParagraphFormat format, int depth) {
  format.tableDepth = depth;
  if (Current().hasContent) EndParagraph(format);
  TableTracker& tables = Current().tables;
  if (tables.Limited(depth) > 0) tables.EndRow(tables.Limited(depth));
}

bool Body::BeginNote() {
  const bool isInNote =
      std::ranges::any_of(flows_, [](const Flow& flow) { return flow.note != kAbsent; });
  if (isInNote || flows_.size() == kMostFlows) return false;
  sink_.BeginNote(++notes_);
  flows_.emplace_back(sink_, 0);
  Current().note = notes_;
  return true;
}

void Body::EndNote(const ParagraphFormat& last, const CharacterFormat& mark) {
  const int note = Current().note;
  EndFlow(last);
  sink_.EndNote();
  AddMark(RunKind::kNote, mark, note);
}

// The last table's place is kept free: a paragraph in a box may always stand in one of its own.
bool Body::BeginBox(int depth) {
  TableTracker& outer = Current().tables;
  const int outerDepth = outer.DepthAtSink(outer.Limited(depth));
  if (outerDepth == kDeepestTable || flows_.size() == kMostFlows) return false;
  outer.Enter(outer.Limited(depth));
  flows_.emplace_back(sink_, outerDepth);
  return true;
}

void Body::EndBox(const ParagraphFormat& last) { EndFlow(last); }

void Body::EndFlow(const ParagraphFormat& last) {
  EndLastParagraph(last);
  Current().tables.Enter(0);
  flows_.pop_back();
}

void Body::End(const ParagraphFormat& last) {
  EndLastParagraph(last);
  Current().tables.Enter(0);
}

}  // namespace tagsmith::rtf
