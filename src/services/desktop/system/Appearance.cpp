#include "services/desktop/system/Appearance.h"

#include <QApplication>

#include "services/Platform.h"
#include "services/desktop/system/Icons.h"

namespace tagsmith {

void SetUpAppearance(QApplication& application) {
  // No display name: Qt would append it to every caption.
  application.setApplicationName(QString::fromLatin1(kApplicationTitle));
  application.setDesktopFileName(QStringLiteral("tagsmith"));
  application.setWindowIcon(ApplicationIcon());
}

}  // namespace tagsmith
