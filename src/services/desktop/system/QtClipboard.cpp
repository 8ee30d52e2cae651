#include "services/desktop/system/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "services/Error.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

// By way of the data, so that a leading byte order mark stays.
QString ClipboardText() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data == nullptr ? QString() : data->text();
}

// Another program may hold the clipboard: Qt only prints a warning then.
void CheckThatItHolds(const QString& wanted) {
  if (ClipboardText() != wanted) {
    throw Error(ErrorCode::kOther, "The clipboard cannot be opened");
  }
}

}  // namespace

std::string QtClipboard::GetText() const { return FromQString(ClipboardText()); }

void QtClipboard::SetText(std::string_view text) {
  const QString wanted = ToQString(text);
  QGuiApplication::clipboard()->setText(wanted);
  CheckThatItHolds(wanted);
}

void QtClipboard::Clear() {
  QGuiApplication::clipboard()->clear();
  CheckThatItHolds({});
}

}  // namespace tagsmith
