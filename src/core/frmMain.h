#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "core/MainMenu.h"
#include "services/Buttons.h"
#include "services/CommonDialog.h"
#include "services/FileBoxes.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/RichTextBox.h"
#include "services/SSTab.h"
#include "services/TextEncoding.h"

namespace tagsmith {

class Application;
class EditingCommands;
class FileCommands;
class RecentFiles;
class Sidebar;

/// What `sbStatusBar` shows while no document is open, and for a new one that has no file yet.
inline constexpr std::string_view kNoDocument = "Ready...";
inline constexpr std::string_view kNewDocument = "Untitled.html";

/// The main form: its controls and the one document. The commands live in files of their own and
/// are bound to the controls from there.
class frmMain : public Form, public MainMenu {
 public:
  /// Makes `application` know this form as its main form.
  explicit frmMain(Application& application);
  ~frmMain() override;

  Application& App() const { return application_; }

  // --- The controls; their order is the Tab order ---

  SSTab MyOuterTab{*this, "MyOuterTab", TabSide::kLeft, {"HTML", "Script"}};
  SSTab MyTab{*this,
              "MyTab",
              TabSide::kTop,
              {"Dialogs", "Formatting", "Fonts, Frames, && Forms", "Lists && Tables", "All Tags",
               "DHTML", "CSS"}};
  SSTab MyTabScript{*this,
                    "MyTabScript",
                    TabSide::kTop,
                    {"JavaScript", "CFML", "VBScript", "PHP", "ASP", "User"}};
  CommandButton cmdNew{*this, "cmdNew"};
  CommandButton cmdOpen{*this, "cmdOpen"};
  CommandButton cmdSave{*this, "cmdSave"};
  CommandButton cmdPrint{*this, "cmdPrint"};
  CommandButton cmdCut{*this, "cmdCut"};
  CommandButton cmdCopy{*this, "cmdCopy"};
  CommandButton cmdPaste{*this, "cmdPaste"};
  CommandButton cmdSpellCheck{*this, "cmdSpellCheck"};
  CommandButton cmdIE{*this, "cmdIE"};
  CommandButton cmdNN{*this, "cmdNN"};
  CommandButton cmdCommentBlock{*this, "cmdCommentBlock"};
  CommandButton cmdUnCommentBlock{*this, "cmdUnCommentBlock"};
  CommandButton cmdVirtualPath{*this, "cmdVirtualPath"};
  CommandButton cmdHelp{*this, "cmdHelp"};
  DriveListBox MyDrive{*this, "MyDrive"};
  DirListBox MyDirectory{*this, "MyDirectory"};
  FileListBox MyFileList{*this, "MyFileList"};
  Label lblResizer{*this, "lblResizer", ""};
  RichTextBox txtEdit{*this, "txtEdit"};
  SSTab MyTabFiles{
      *this, "MyTabFiles", TabSide::kBottom, {"Tab 0", "Tab 1", "Tab 2", "Tab 3", "Tab 4"}};
  StatusBar sbStatusBar{*this, "sbStatusBar"};
  Image MyImage{*this, "MyImage"};
  /// The one dialog of Open, Save As, Fonts and Print.
  CommonDialog dlgCommonDialog{*this};

  // --- What other subsystems add to the start-up; an empty slot is passed over ---

  struct Startup {
    std::function<void()> loadUserButtons;
    std::function<void()> assignUserToolTips;
    std::function<void()> fillCatalogs;
  } startup;

  // --- Text into the document, by way of the clipboard, as one undo step. With no document open a
  // new one is started first. The pane has the focus afterwards. ---

  /// Puts the texts around the selection, the caret behind; without a selection both at the caret,
  /// which then stands between them.
  void InsertAround(std::string_view openText, std::string_view closeText);
  /// Puts the text in place of the selection.
  void InsertText(std::string_view text);

  // --- The document ---

  /// kNoDocument, kNewDocument, or the full path of the file being edited.
  const std::string& DocumentName() const { return sbStatusBar.SimpleText(); }
  /// Names the document, in the status bar and in the form's caption.
  void SetDocumentName(std::string_view name);
  /// The form's caption alone.
  void ShowInCaption(std::string_view name);
  bool HasDocument() const { return DocumentName() != kNoDocument; }

  bool DocumentChanged() const { return documentChanged_; }
  /// The flag alone; `cmdSave` stays as it is.
  void SetDocumentChanged(bool changed) { documentChanged_ = changed; }
  /// The document has edits: the flag, and `cmdSave` enabled.
  void MarkChanged();
  /// The document is as it is on disk: the flag, and `cmdSave` disabled.
  void MarkUnchanged();

  /// How the document's file is encoded.
  TextEncoding DocumentEncoding() const { return encoding_; }
  void SetDocumentEncoding(TextEncoding encoding) { encoding_ = encoding; }

  /// Makes `text` (UTF-8) the text of a new document, named kNewDocument and without edits. Asks
  /// nothing; what was undoable is forgotten. For commands that make a whole page.
  void ReplaceDocument(std::string_view text);

  // --- Commands that other subsystems call ---

  /// Reads the file at `path` into the pane and forgets what was undoable; the document keeps its
  /// name. False if the file was refused or could not be read: the user has been told, the pane is
  /// as it was.
  bool LoadText(std::string_view path);
  /// Before a command that replaces the document: asks `prompt` if there are edits, and saves them
  /// on Yes. False if the command is to end.
  bool ConfirmLosingEdits(std::string_view prompt);
  void mnuFileNew_Click();
  void mnuFileSave_Click();
  void mnuFileSaveAs_Click();

  /// Whether the start-up is over: until then what happens to the pane does not count as an edit.
  bool FormLoaded() const { return formLoaded_; }

  FileCommands& Files() const { return *fileCommands_; }
  RecentFiles& Recent() const { return *recentFiles_; }
  Sidebar& Lists() const { return *sidebar_; }
  EditingCommands& Editing() const { return *editingCommands_; }

 private:
  void BindEvents();
  void Form_Load();
  void InitializeLoad();
  void InitializeRestore();
  void OpenFirstDocument();
  void StartFromTemplate();
  void RestoreBrowserSettings();
  void GetMainOptions();
  void Form_Resize();
  void Form_Unload(bool& cancel);
  void lblResizer_MouseMove(Twips x);
  void txtEdit_Change();
  bool EnsureDocument();

  Application& application_;
  bool documentChanged_ = false;
  bool formLoaded_ = false;
  bool splitterMoving_ = false;
  TextEncoding encoding_ = TextEncoding::kUtf8;
  std::unique_ptr<FileCommands> fileCommands_;
  std::unique_ptr<RecentFiles> recentFiles_;
  std::unique_ptr<Sidebar> sidebar_;
  std::unique_ptr<EditingCommands> editingCommands_;
};

}  // namespace tagsmith
