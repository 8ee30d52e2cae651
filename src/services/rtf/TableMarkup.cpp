#include "services/rtf/TableMarkup.h"

#include <cstddef>
#include <string_view>

#include "services/rtf/Markup.h"
#include "services/rtf/TableLayout.h"

namespace tagsmith::rtf {
namespace {

void AppendSpan(std::string& out, std::string_view attribute, std::size_t span) {
  if (span <= 1) return;
  out += ' ';
  out += attribute;
  out += "=\"";
  AppendNumber(out, static_cast<std::int64_t>(span));
  out += '"';
}

class TableMarkup {
 public:
  TableMarkup(std::string& out, const BufferedTable& table)
      : out_(out), table_(table), layout_(table) {}

  void Append() {
    AppendStart();
    bool isHead = false;
    for (const PlacedRow& row : layout_.Rows()) {
      if (row.isHeader != isHead) out_ += row.isHeader ? "<thead>\r\n" : "</thead>\r\n";
      isHead = row.isHeader;
      AppendRow(row);
    }
    out_ += isHead ? "</thead>\r\n</table>\r\n" : "</table>\r\n";
  }

 private:
  void AppendStart() {
    const TableGrid& grid = layout_.Grid();
    const Alignment alignment = table_.looks.front().format.alignment;
    out_ += "<table";
    StyleAttribute style(out_);
    if (grid.ColumnCount() > 0) style.AddPoints("width", grid.Width());
    if (alignment == Alignment::kCentre) {
      style.Add("margin-left", "auto");
      style.Add("margin-right", "auto");
    } else if (alignment == Alignment::kRight) {
      style.Add("margin-left", "auto");
    } else if (grid.Left() > 0) {
      style.AddPoints("margin-left", grid.Left());
    }
    style.Close();
    out_ += ">\r\n";
    if (grid.ColumnCount() > 0) AppendColumns(grid);
  }

  void AppendColumns(const TableGrid& grid) {
    out_ += "<colgroup>";
    for (std::size_t column = 0; column < grid.ColumnCount(); ++column) {
      out_ += "<col style=\"width:";
      AppendPoints(out_, grid.WidthOf(column));
      out_ += "\">";
    }
    out_ += "</colgroup>\r\n";
  }

  void AppendRow(const PlacedRow& row) {
    out_ += "<tr>\r\n";
    if (row.begin > 0) AppendGap(row.begin);
    for (std::size_t i = 0; i < row.cellCount; ++i) {
      AppendCell(layout_.CellAt(row.firstCell + i));
    }
    if (row.end < layout_.ColumnCount()) AppendGap(layout_.ColumnCount() - row.end);
    out_ += "</tr>\r\n";
  }

  void AppendGap(std::size_t columns) {
    out_ += "<td";
    AppendSpan(out_, "colspan", columns);
    out_ += "></td>\r\n";
  }

  // Cells of the head are "td" too: a heading may not stand in a "th".
  void AppendCell(const PlacedCell& cell) {
    out_ += "<td";
    AppendSpan(out_, "colspan", cell.columns);
    AppendSpan(out_, "rowspan", cell.rows);
    if (cell.look != nullptr) out_ += cell.look->style;
    out_ += '>';
    const std::size_t begin = out_.size();
    for (std::size_t piece = cell.firstPiece;; piece = layout_.NextPiece(piece)) {
      const BufferedCell& buffered = table_.cells[piece];
      out_.append(table_.content, buffered.begin, buffered.end - buffered.begin);
      if (piece == cell.lastPiece) break;
    }
    if (out_.size() == begin) out_ += "&nbsp;";  // A row of empty cells keeps its height.
    out_ += "</td>\r\n";
  }

  std::string& out_;
  const BufferedTable& table_;
  TableLayout layout_;
};

}  // namespace

void AppendTable(std::string& out, const BufferedTable& table) {
  if (table.rows.empty()) {
    out += table.content;
  } else {
    TableMarkup(out, table).Append();
  }
}

}  // namespace tagsmith::rtf
