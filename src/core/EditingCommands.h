#pragma once

#include <string_view>

#include "core/BlockComment.h"

namespace tagsmith {

class Application;
class CommandButton;
class Menu;
class frmMain;

/// The Edit menu and its buttons, the editor's font, and the Tab key: what works on the pane
/// directly.
class EditingCommands {
 public:
  explicit EditingCommands(frmMain& form);

  /// Applies the stored font, gives the pane the focus and puts the caret between the tags of the
  /// usual template's title.
  void RestoreFontInfo();
  /// Puts the caret at the start of the line with this number, counted from 1. A number that is no
  /// line's does nothing.
  void GotoLine(double line);

 private:
  using BlockFunction = TextEdit (*)(std::string_view, std::size_t, std::size_t, std::string_view);

  void Bind();
  void BindKeys(Menu& entry, CommandButton* button, std::string_view keys);
  void BindBlock(CommandButton& button, BlockFunction function);
  void Apply(const TextEdit& edit);
  void SelectAll();
  void mnuGotoLine_Click();
  void mnuInsertDate_Click();
  void mnuFonts_Click();
  void ChooseFont();
  void txtEdit_KeyPress(int& keyAscii);

  frmMain& form_;
  Application& application_;
};

}  // namespace tagsmith
