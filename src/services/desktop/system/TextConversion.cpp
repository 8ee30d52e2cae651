#include "services/desktop/system/TextConversion.h"

#include <QByteArray>
#include <QStringDecoder>

namespace tagsmith {

QString ToQString(std::string_view utf8) {
  // QString::fromUtf8 would drop a leading byte order mark.
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
  return decoder.decode(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string FromQString(const QString& text) { return text.toUtf8().toStdString(); }

}  // namespace tagsmith
