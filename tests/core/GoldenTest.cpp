#include <gtest/gtest.h>

#include "support/GoldenFolders.h"

namespace tagsmith {
namespace {

TEST(Golden, EachFolderGivesTheTextAfterInOneUndoStep) {
  RunGoldenFolders(TAGSMITH_GOLDEN_FOLDER, [](RunningProgram& program) {
    program.desktop.AddPicture("c:\\art\\Fötö.GIF", 120, 45);
    program.desktop.files.AddFile("c:\\art\\kein bild.jpg", "no picture");
    program.desktop.files.AddFile("c:\\art\\long.jpeg", "");
  });
}

}  // namespace
}  // namespace tagsmith
