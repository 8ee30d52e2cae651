#pragma once

#include <string_view>

namespace tagsmith {

class Application;
class frmMain;

/// The question before a command that brings another file into the pane.
inline constexpr std::string_view kOpeningPrompt = "Save Current Before Opening Another File?";

/// The life of the one document: loading, the template, saving, closing, and the prompts that guard
/// unsaved edits. Binds the File menu and its buttons.
class FileCommands {
 public:
  explicit FileCommands(frmMain& form);

  /// As `frmMain::LoadText`.
  bool LoadText(std::string_view path);
  /// As `frmMain::ConfirmLosingEdits`.
  bool ConfirmLosingEdits(std::string_view prompt);
  /// Loads the template as a new document, which is named kNewDocument whatever came.
  void StartFromTemplate();

  void mnuFileNew_Click();
  void mnuFileOpen_Click();
  void mnuFileClose_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();

 private:
  void Bind();
  void Open();
  void SaveAs();
  void Write(std::string_view path);
  bool TryWrite(std::string_view path);
  void Inform(std::string_view prompt, std::string_view title);
  void mnuSaveAsUnix_Click();
  void txtEdit_GotFocus();

  frmMain& form_;
  Application& application_;
};

}  // namespace tagsmith
