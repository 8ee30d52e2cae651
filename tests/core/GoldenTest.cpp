// Edits as folders: the text before with its selection marked, the user's actions, the text after.
//
// Lines of `command`: "click NAME" presses a button or menu entry, "ask ANSWER" lays down the
// answer to the Goto Line box, "symbol TEXT" sets the comment symbol, "type TEXT" and "tab" are
// keys, "sizes" asks for picture sizes, "drop NAME" drops the file c:\art\NAME onto the pane.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "support/MarkedText.h"
#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

const fs::path kFolder = TAGSMITH_GOLDEN_FOLDER;

std::string ReadAll(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Click(const frmMain& form, const std::string& name) {
  if (auto* menu = dynamic_cast<Menu*>(form.Find(name))) return menu->Click();
  form.Get<CommandButton>(name).Click();
}

void Drop(RunningProgram& program, const std::string& name) {
  FileListBox& list = program.form.MyFileList;
  program.form.MyDirectory.SetPath("c:\\art");
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.List(i) == name) list.Select(i);
  }
  program.form.txtEdit.Drop(list, 150, 150);
}

void Act(RunningProgram& program, const std::string& line) {
  const std::size_t blank = std::min(line.find(' '), line.size());
  const std::string verb = line.substr(0, blank);
  const std::string rest = blank < line.size() ? line.substr(blank + 1) : "";
  if (verb == "click") Click(program.form, rest);
  if (verb == "ask") {
    program.desktop.ExpectInputBox("Enter Line Number To Jump To", "Jump To Line", "", rest);
  }
  if (verb == "symbol") program.app.gBlockCommentSymbol = rest;
  if (verb == "type") program.Pane().Type(rest);
  if (verb == "tab") program.Pane().Type("\t");
  if (verb == "sizes") program.app.gIncludeHeightWidth = true;
  if (verb == "drop") Drop(program, rest);
}

void ExpectTextAfterInOneUndoStep(const fs::path& folder) {
  RunningProgram program;
  program.desktop.AddPicture("c:\\art\\Fötö.GIF", 120, 45);
  program.desktop.files.AddFile("c:\\art\\kein bild.jpg", "no picture");
  program.desktop.files.AddFile("c:\\art\\long.jpeg", "");
  program.Begin();
  const MarkedText before = MarkedText::Read(ReadAll(folder / "before"));
  RichTextBox& pane = program.form.txtEdit;
  pane.SetText(before.text);
  pane.EmptyUndoHistory();
  program.Pane().Select(before.selStart, before.selLength);
  program.desktop.clipboard.text = "kept ✂";

  std::istringstream commands(ReadAll(folder / "command"));
  for (std::string line; std::getline(commands, line);) Act(program, line);

  const MarkedText after{pane.Text(), pane.SelStart(), pane.SelLength()};
  EXPECT_EQ(after.Write(), ReadAll(folder / "after"));
  EXPECT_EQ(program.desktop.clipboard.text, "kept ✂");
  program.Pane().Undo();
  EXPECT_EQ(pane.Text(), before.text);
}

TEST(Golden, EachFolderGivesTheTextAfterInOneUndoStep) {
  for (const auto& folder : fs::directory_iterator(kFolder)) {
    SCOPED_TRACE(folder.path().filename());
    ExpectTextAfterInOneUndoStep(folder);
  }
}

}  // namespace
}  // namespace tagsmith
