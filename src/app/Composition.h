#pragma once

#include <memory>
#include <string>

#include "core/Application.h"
#include "core/frmMain.h"
#include "services/Platform.h"
#include "services/desktop/system/QtClipboard.h"
#include "services/desktop/system/QtDialogs.h"
#include "services/desktop/system/QtEventQueue.h"
#include "services/desktop/system/QtKeyboard.h"
#include "services/desktop/system/QtPictures.h"
#include "services/desktop/system/QtPrinter.h"
#include "services/desktop/windows/QtWindowSystem.h"
#include "services/host/DesktopRegistry.h"
#include "services/host/HostCalendar.h"
#include "services/host/HostFiles.h"
#include "services/host/HostRtfConversion.h"
#include "services/host/HostSettings.h"
#include "services/host/HostShell.h"
#include "services/host/HunspellDictionary.h"

namespace tagsmith {

/// The whole system on this desktop: the services, the main form, and every subsystem bound to it.
/// Needs a QApplication, which outlives it.
class Composition {
 public:
  /// The arguments are those of `main`. `settingsFile` is a host path.
  Composition(int argc, const char* const* argv,
              std::string settingsFile = HostSettings::DefaultPath());

  /// Shows the splash, loads the main form and puts it on the screen.
  void Start();

  Application& App() { return application_; }
  frmMain& MainForm() { return mainForm_; }

 private:
  HostFiles files_;
  HostSettings settings_;
  HostCalendar calendar_;
  HostRtfConversion rtf_{files_};
  HostShell shell_{files_};
  DesktopRegistry registry_;
  HunspellDictionary dictionary_;
  QtWindowSystem windows_;
  QtPrinter printer_;
  QtDialogs dialogs_;
  QtClipboard clipboard_;
  QtKeyboard keyboard_;
  QtEventQueue events_;
  QtPictures pictures_;
  Platform platform_;
  Application application_;
  frmMain mainForm_;
};

}  // namespace tagsmith
