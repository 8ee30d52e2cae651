#include <QApplication>

#include "app/Composition.h"
#include "services/desktop/system/Appearance.h"

int main(int argc, char** argv) {
  // The whole command tail is the name of a file: none of it is the toolkit's.
  int toolkitArguments = 1;
  QApplication application(toolkitArguments, argv);
  tagsmith::SetUpAppearance(application);

  tagsmith::Composition composition(argc, argv);
  composition.Start();
  return QApplication::exec();
}
