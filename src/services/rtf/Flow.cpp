#include "services/rtf/Flow.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "services/rtf/Markup.h"
#include "services/rtf/TableMarkup.h"

namespace tagsmith::rtf {
namespace {

// Deeper tables count as part of the cell around them: each level copies its content once more.
constexpr int kMostTables = 12;

bool IsDepth(int depth) { return depth >= 1 && depth <= kMostTables; }

}  // namespace

std::string& Flow::Out() { return tables_.empty() ? markup_ : tables_.back().Content(); }

void Flow::GoToDepth(int depth) {
  const auto wanted = static_cast<std::size_t>(std::clamp(depth, 0, kMostTables));
  if (wanted == tables_.size()) return;
  lists_.CloseAll(Out());
  while (tables_.size() > wanted) CloseTable();
  tables_.resize(wanted);
}

void Flow::CloseTable() {
  const BufferedTable table = tables_.back().Take();
  tables_.pop_back();
  AppendTable(Out(), table);
  if (!tables_.empty() && !table.content.empty()) tables_.back().SetHasText();
}

void Flow::AddParagraph(const Paragraph& paragraph) {
  GoToDepth(paragraph.format.tableDepth);
  if (!tables_.empty() && !paragraph.runs.empty()) tables_.back().SetHasText();
  const ParagraphFormat& format = paragraph.format;
  if (format.list.list != kAbsent) {
    lists_.BeginItem(Out(), format);
    if (format.heading == 0) {
      inlines_.AppendRuns(Out(), paragraph);
    } else {
      AppendBlock(paragraph, Indents::kOfList);
    }
  } else if (lists_.Continues(Out(), format)) {
    AppendBlock(paragraph, Indents::kOfList);
  } else {
    lists_.CloseAll(Out());
    AppendBlock(paragraph, Indents::kShown);
  }
}

void Flow::AppendBlock(const Paragraph& paragraph, Indents indents) {
  constexpr std::array<std::string_view, 7> kNames = {"p", "h1", "h2", "h3", "h4", "h5", "h6"};
  const auto heading = static_cast<std::size_t>(std::clamp(paragraph.format.heading, 0, 6));
  const std::string_view name = kNames[heading];
  std::string& out = Out();
  out += '<';
  out += name;
  AppendBlockAttributes(out, paragraph.format, indents);
  out += '>';
  inlines_.AppendRuns(out, paragraph);
  out += "</";
  out += name;
  out += '>';
  out += kLineEnd;
}

void Flow::EndCell(int depth) {
  if (!IsDepth(depth)) return;
  GoToDepth(depth);
  lists_.CloseAll(Out());
  tables_.back().EndCell();
}

void Flow::EndRow(int depth, const RowFormat& format) {
  if (!IsDepth(depth)) return;
  GoToDepth(depth);
  lists_.CloseAll(Out());
  tables_.back().EndRow(format);
}

std::string Flow::Take() {
  lists_.CloseAll(Out());
  GoToDepth(0);
  return std::move(markup_);
}

}  // namespace tagsmith::rtf
