#include <QApplication>
#include <exception>
#include <iostream>

#include "app/Composition.h"
#include "services/desktop/system/Appearance.h"

int main(int argc, char** argv) {
  // The whole command tail is the name of a file: none of it is the toolkit's.
  int toolkitArguments = 1;
  QApplication application(toolkitArguments, argv);
  tagsmith::SetUpAppearance(application);

  try {
    tagsmith::Composition composition(argc, argv);
    composition.Start();
    return QApplication::exec();
  } catch (const std::exception& error) {
    std::cerr << "Tagsmith cannot start: " << error.what() << '\n';
    return 1;
  }
}
