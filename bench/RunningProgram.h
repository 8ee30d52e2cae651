#pragma once

#include <QApplication>
#include <QTemporaryDir>

#include "app/Composition.h"

namespace tagsmith::bench {

/// The running program, its window on the (virtual) screen, its settings in a folder of its own.
class Program {
 public:
  Program() : composition_(1, kArguments, folder_.filePath("settings.json").toStdString()) {
    composition_.Start();
    QApplication::processEvents();
  }

  Application& App() { return composition_.App(); }
  frmMain& Form() { return composition_.MainForm(); }
  QString FilePath(const char* name) const { return folder_.filePath(name); }

  static void Paint() { QApplication::processEvents(); }

 private:
  static constexpr const char* kArguments[] = {"tagsmith"};

  QTemporaryDir folder_;
  Composition composition_;
};

inline Program& TheProgram() {
  static Program program;
  return program;
}

}  // namespace tagsmith::bench
