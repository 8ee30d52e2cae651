#include "dialogs/TableBlock.h"

#include <string_view>

#include "core/general1.h"
#include "dialogs/Attributes.h"

namespace tagsmith::dialogs {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kRowIndent = "     ";
constexpr std::string_view kCellIndent = "          ";

std::string OpeningTag(const TableFields& fields) {
  std::string tag = "<TABLE";
  AppendFilled(tag, {{"Width", fields.width},
                     {"Border", fields.borderWidth},
                     {"CellSpacing", fields.cellSpacing},
                     {"CellPadding", fields.cellPadding},
                     {"Align", fields.align},
                     {"VAlign", fields.vAlign}});
  AppendColour(tag, "BgColor", fields.background);
  return tag + ">";
}

void AppendRow(std::string& block, const CellTexts& cells, int row, int columns) {
  const std::string_view open = row == 0 ? "<TH>" : "<TD>";
  const std::string_view close = row == 0 ? "</TH>" : "</TD>";
  block.append(kRowIndent).append("<TR>").append(kLineEnd);
  for (int column = 0; column < columns; ++column) {
    const std::string_view text = Trim(cells.At(row, column));
    block.append(kCellIndent).append(open).append(text).append(close).append(kLineEnd);
  }
  block.append(kRowIndent).append("</TR>").append(kLineEnd);
}

}  // namespace

std::string TableBlock(const TableFields& fields, const CellTexts& cells) {
  std::string block = OpeningTag(fields).append(kLineEnd);
  if (!fields.caption.empty()) {
    block.append("<CAPTION>").append(Trim(fields.caption)).append("</CAPTION>").append(kLineEnd);
  }
  for (int row = 0; row < fields.rows; ++row) AppendRow(block, cells, row, fields.columns);
  return block + "</TABLE>";
}

}  // namespace tagsmith::dialogs
