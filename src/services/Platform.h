#pragma once

#include <string>

#include "services/FormPool.h"

namespace tagsmith {

class Calendar;
class Clipboard;
class Dialogs;
class Dictionary;
class EventQueue;
class FileSystem;
class Keyboard;
class PictureLoader;
class Printer;
class Registry;
class RtfConversion;
class SettingsStore;
class Shell;
class WindowSystem;

/// All that the system asks of the desktop, in one place, and the forms of the run. The services
/// outlive it.
struct Platform {
  WindowSystem& windows;
  Dialogs& dialogs;
  Clipboard& clipboard;
  Keyboard& keyboard;
  EventQueue& events;
  FileSystem& files;
  SettingsStore& settings;
  PictureLoader& pictures;
  Calendar& calendar;
  RtfConversion& rtf;
  Printer& printer;
  Shell& shell;
  Registry& registry;
  Dictionary& dictionary;

  /// The folder beside which the program's own files lie: a system path without a backslash.
  std::string applicationPath;
  /// The whole command tail, blanks at its ends included; a path in it is a system path.
  std::string commandTail;

  FormPool forms{};
};

/// The application's title: in captions, as the title of boxes that have none, and in the settings.
inline constexpr const char* kApplicationTitle = "Tagsmith";

}  // namespace tagsmith
