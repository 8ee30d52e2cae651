#include "app/Composition.h"

#include <utility>

#include "core/Startup.h"
#include "dialogs/Install.h"
#include "generators/Install.h"
#include "integration/Install.h"
#include "services/host/CommandTail.h"
#include "services/host/ProgramDirectory.h"
#include "sitetools/Install.h"
#include "toolbars/Install.h"

namespace tagsmith {
namespace {

std::string TailOf(int argc, const char* const* argv, const HostFiles& files) {
  return CommandTail(argc, argv, DriveMap(MountPoints()), files.CurrentDirectory());
}

}  // namespace

Composition::Composition(int argc, const char* const* argv, std::string settingsFile)
    : settings_(std::move(settingsFile)),
      dialogs_([this](Form& form) { return windows_.WindowOf(form); },
               [this](std::string_view path) { return files_.ToHostPath(path); },
               [](std::string_view path) { return DriveMap::ToSystemPath(path); }, printer_),
      pictures_([this](std::string_view path) { return files_.ToHostPath(path); }),
      platform_{windows_,  dialogs_,    clipboard_,         keyboard_,
                events_,   files_,      settings_,          pictures_,
                calendar_, rtf_,        printer_,           shell_,
                registry_, dictionary_, ProgramDirectory(), TailOf(argc, argv, files_)},
      application_(platform_),
      mainForm_(application_) {
  toolbars::Install(application_);  // First: it makes the buttons of the pages.
  dialogs::Install(application_);
  generators::Install(application_);
  sitetools::Install(application_);
  integration::Install(application_);
}

void Composition::Start() { tagsmith::Start(application_, mainForm_); }

}  // namespace tagsmith
