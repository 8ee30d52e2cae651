#include "services/desktop/system/FileFilters.h"

#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

bool MeansAllFiles(const QString& pattern) {
  return pattern.isEmpty() || pattern == QLatin1String("*") || pattern == QLatin1String("*.*") ||
         pattern.compare(QLatin1String("*.exe"), Qt::CaseInsensitive) == 0;
}

// "*.[Hh][Tt]" for "*.ht".
QString InAnyCase(const QString& pattern) {
  QString result;
  for (const QChar character : pattern) {
    const QChar upper = character.toUpper();
    const QChar lower = character.toLower();
    if (upper == lower) {
      result += character;
    } else {
      result += QLatin1Char('[') + upper + lower + QLatin1Char(']');
    }
  }
  return result;
}

// The plain patterns stand first: Qt's dialog takes the extension from the first one when the user
// picks another filter while saving.
QStringList DialogPatterns(const QString& patterns) {
  QStringList plain;
  QStringList anyCase;
  for (const QString& part : patterns.split(QLatin1Char(';'))) {
    const QString pattern = part.trimmed();
    if (MeansAllFiles(pattern)) return {QStringLiteral("*")};
    plain += pattern;
    anyCase += InAnyCase(pattern);
  }
  return plain + anyCase;
}

}  // namespace

QStringList NameFilters(std::string_view filter) {
  QStringList result;
  if (filter.empty()) return result;
  const QStringList fields = ToQString(filter).split(QLatin1Char('|'));
  for (qsizetype i = 0; i < fields.size(); i += 2) {
    const QString patterns = fields.value(i + 1);
    const QString caption = fields[i].isEmpty() ? patterns : fields[i];
    if (caption.isEmpty()) continue;
    result +=
        caption + QStringLiteral(" (%1)").arg(DialogPatterns(patterns).join(QLatin1Char(' ')));
  }
  return result;
}

}  // namespace tagsmith
