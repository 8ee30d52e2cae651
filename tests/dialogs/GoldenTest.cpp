#include <gtest/gtest.h>

#include "dialogs/Install.h"
#include "support/GoldenFolders.h"
#include "toolbars/Install.h"

namespace tagsmith::dialogs {
namespace {

TEST(Dialogs, EachFolderGivesTheTextAfterInOneUndoStep) {
  RunGoldenFolders(TAGSMITH_GOLDEN_FOLDER, [](RunningProgram& program) {
    toolbars::Install(program.app);
    Install(program.app);
  });
}

}  // namespace
}  // namespace tagsmith::dialogs
