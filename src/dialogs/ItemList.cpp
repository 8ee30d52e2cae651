#include "dialogs/ItemList.h"

namespace tagsmith::dialogs {
namespace {

struct Lines {
  std::string_view open;
  std::string_view item;
  std::string_view close;
};

std::string Build(const Lines& lines, int count) {
  constexpr std::string_view kIndent = "   ";
  constexpr std::string_view kLineEnd = "\r\n";
  std::string text;
  text.append(lines.open).append(kLineEnd);
  for (int i = 0; i < count; ++i) text.append(kIndent).append(lines.item).append(kLineEnd);
  return text.append(lines.close).append(kLineEnd);
}

}  // namespace

std::string EmptyList(ListKind kind, int count) {
  switch (kind) {
    case ListKind::kOrdered:
      return Build({"<OL>", "<LI></LI>", "</OL>"}, count);
    case ListKind::kUnordered:
      return Build({"<UL>", "<LI></LI>", "</UL>"}, count);
    default:
      return Build({"<DL>", "<DT><DD>", "</DL>"}, count);
  }
}

std::string RoomyList(ListKind kind, std::string_view start, int count) {
  const std::string ordered = std::string("<OL Type=\"").append(start).append("\">");
  switch (kind) {
    case ListKind::kOrdered:
      return Build({ordered, "<LI>   </LI>", "</OL>"}, count);
    case ListKind::kUnordered:
      return Build({"<UL>", "<LI>   </LI>", "</UL>"}, count);
    default:
      return Build({"<DL>", "<DT>   <DD>", "</DL>"}, count);
  }
}

std::string SelectList(std::string_view name, int count) {
  const std::string open = std::string("<SELECT Name=\"").append(name).append("\">");
  return Build({open, "<Option>", "</SELECT>"}, count);
}

}  // namespace tagsmith::dialogs
