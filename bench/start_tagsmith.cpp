// The start of the whole program, to the first paint of its main window.

#include <QApplication>

#include "FirstPaint.h"
#include "app/Composition.h"
#include "services/desktop/system/Appearance.h"

int main(int argc, char** argv) {
  int toolkitArguments = 1;
  QApplication application(toolkitArguments, argv);
  tagsmith::SetUpAppearance(application);
  const tagsmith::bench::EndAtFirstPaint end("frmMain");
  tagsmith::Composition composition(argc, argv);
  composition.Start();
  return QApplication::exec();
}
