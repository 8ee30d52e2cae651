#include "services/desktop/windows/EditedText.h"

#include <algorithm>
#include <vector>

#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

constexpr QChar kShownLineEnd = QChar::ParagraphSeparator;

// Besides the line ends proper these begin a new block in a QTextDocument.
bool EndsBlock(QChar c) {
  return c == u'\r' || c == u'\n' || c == kShownLineEnd || c == QChar(0xFDD0) || c == QChar(0xFDD1);
}

// A text in units: one for each character shown. `starts` has where each begins in `text`, and the
// end of the text as its last entry.
struct UnitText {
  QString text;
  QString shown;
  std::vector<qsizetype> starts;
};

UnitText Split(std::string_view utf8) {
  UnitText units{ToQString(utf8), {}, {}};
  const QString& text = units.text;
  for (qsizetype i = 0; i < text.size();) {
    units.starts.push_back(i);
    units.shown += EndsBlock(text[i]) ? kShownLineEnd : text[i];
    const bool isPair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
    i += isPair ? 2 : 1;
  }
  units.starts.push_back(text.size());
  return units;
}

}  // namespace

QString ShownText(std::string_view text) { return Split(text).shown; }

std::string MergeEdit(std::string_view before, const QString& shown) {
  const UnitText old = Split(before);
  const qsizetype common = std::min(old.shown.size(), shown.size());
  qsizetype head = 0;
  while (head < common && old.shown[head] == shown[head]) ++head;
  qsizetype tail = 0;
  while (tail < common - head &&
         old.shown[old.shown.size() - 1 - tail] == shown[shown.size() - 1 - tail]) {
    ++tail;
  }
  QString typed = shown.mid(head, shown.size() - tail - head);
  typed.replace(kShownLineEnd, QStringLiteral("\r\n"));
  const auto startOf = [&old](qsizetype unit) {
    return old.starts[static_cast<std::size_t>(unit)];
  };
  return FromQString(old.text.left(startOf(head)) + typed +
                     old.text.mid(startOf(old.shown.size() - tail)));
}

}  // namespace tagsmith
