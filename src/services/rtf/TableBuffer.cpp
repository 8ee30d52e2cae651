#include "services/rtf/TableBuffer.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>
#include <utility>

#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

// More than any table of a page has; what comes behind stays in the last cell.
constexpr std::size_t kMostCells = 256;
constexpr int kLargestEdge = 4 * 1440 * 22;
constexpr int kThinnestBorder = 5;
constexpr int kUsualBorder = 15;
constexpr int kThickestBorder = 120;

bool AreSame(const Border& one, const Border& other) {
  return one.isThere == other.isThere && one.width == other.width && one.colour == other.colour;
}

bool AreSame(const CellFormat& one, const CellFormat& other) {
  const auto values = [](const CellFormat& cell) {
    return std::tie(cell.rightEdge, cell.across, cell.down, cell.alignment, cell.background);
  };
  return values(one) == values(other) &&
         std::equal(one.borders.begin(), one.borders.end(), other.borders.begin(),
                    [](const Border& a, const Border& b) { return AreSame(a, b); });
}

// Whether `look` was made of the first `cellCount` cells of a format like this one.
bool IsLookOf(const RowLook& look, const RowFormat& format, std::size_t cellCount) {
  const std::vector<CellFormat>& cells = look.format.cells;
  return look.format.leftEdge == format.leftEdge && look.format.isHeader == format.isHeader &&
         look.format.alignment == format.alignment && cells.size() == cellCount &&
         std::equal(cells.begin(), cells.end(), format.cells.begin(),
                    [](const CellFormat& a, const CellFormat& b) { return AreSame(a, b); });
}

std::string BorderValue(const Border& border) {
  const int width =
      border.width <= 0 ? kUsualBorder : std::clamp(border.width, kThinnestBorder, kThickestBorder);
  std::string value;
  AppendPoints(value, width);
  value += " solid";
  if (border.colour != kAbsent) {
    value += ' ';
    AppendColour(value, border.colour);
  }
  return value;
}

void AddBorders(StyleAttribute& style, const std::array<Border, 4>& borders) {
  constexpr std::array<std::string_view, 4> kSides = {"border-top", "border-right", "border-bottom",
                                                      "border-left"};
  const bool areAllSame = std::all_of(borders.begin(), borders.end(), [&](const Border& border) {
    return AreSame(border, borders.front());
  });
  if (areAllSame) {
    if (borders.front().isThere) style.Add("border", BorderValue(borders.front()));
    return;
  }
  for (std::size_t side = 0; side < kSides.size(); ++side) {
    if (borders[side].isThere) style.Add(kSides[side], BorderValue(borders[side]));
  }
}

std::string StyleOf(const CellFormat& first, const CellFormat& last) {
  std::string attribute;
  StyleAttribute style(attribute);
  std::array<Border, 4> borders = first.borders;
  borders[1] = last.borders[1];
  AddBorders(style, borders);
  if (first.background != kAbsent) style.AddColour("background-color", first.background);
  if (first.alignment == VerticalAlignment::kCentre) style.Add("vertical-align", "middle");
  if (first.alignment == VerticalAlignment::kBottom) style.Add("vertical-align", "bottom");
  style.Close();
  return attribute;
}

std::vector<CellLook> LooksOf(const std::vector<CellFormat>& cells) {
  std::vector<CellLook> looks;
  std::size_t first = 0;
  while (first < cells.size()) {
    std::size_t last = first;
    if (cells[first].across == Merge::kFirst) {
      while (last + 1 < cells.size() && cells[last + 1].across == Merge::kContinued) ++last;
    }
    const int edge = std::clamp(cells[last].rightEdge, -kLargestEdge, kLargestEdge);
    looks.push_back(
        {first, last - first + 1, edge, cells[first].down, StyleOf(cells[first], cells[last])});
    first = last + 1;
  }
  return looks;
}

}  // namespace

void TableBuffer::EndCell() {
  if (CellsInRow() < kMostCells) AddCell();
}

void TableBuffer::AddCell() {
  table_.cells.push_back({cellBegin_, table_.content.size(), hasText_});
  cellBegin_ = table_.content.size();
  hasText_ = false;
}

void TableBuffer::EndRow(const RowFormat& format) {
  if (cellBegin_ < table_.content.size()) AddCell();
  const std::size_t cellCount = CellsInRow();
  if (cellCount == 0) return;
  table_.rows.push_back({rowBegin_, cellCount, LookOf(format, cellCount)});
  rowBegin_ = table_.cells.size();
}

// The number of the row's look. Rows mostly have that of the row before.
std::size_t TableBuffer::LookOf(const RowFormat& format, std::size_t cellCount) {
  const std::size_t known = std::min(cellCount, format.cells.size());
  if (table_.looks.empty() || !IsLookOf(table_.looks.back(), format, known)) {
    RowLook look;
    look.format.leftEdge = std::clamp(format.leftEdge, -kLargestEdge, kLargestEdge);
    look.format.isHeader = format.isHeader;
    look.format.alignment = format.alignment;
    look.format.cells.assign(format.cells.begin(),
                             format.cells.begin() + static_cast<std::ptrdiff_t>(known));
    look.cells = LooksOf(look.format.cells);
    table_.looks.push_back(std::move(look));
  }
  return table_.looks.size() - 1;
}

BufferedTable TableBuffer::Take() {
  if (!table_.cells.empty() && rowBegin_ < table_.cells.size()) EndRow({});
  if (!table_.rows.empty() && cellBegin_ < table_.content.size()) EndRow({});
  return std::move(table_);
}

}  // namespace tagsmith::rtf
