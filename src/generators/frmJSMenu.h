#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/Buttons.h"
#include "services/CommonDialog.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Menu.h"
#include "services/TextBox.h"
#include "services/TextEncoding.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::generators {

/// Keeps a menu as a text file and writes the page with the expandable menu that it describes. It
/// works on files only: nothing goes into the edit pane.
class frmJSMenu : public Form {
 public:
  explicit frmJSMenu(Application& application);

  Menu mnuFile{*this, "mnuFile", "&File"};
  Menu mnuNew{*this, "mnuNew", "&Create New Menu", &mnuFile};
  Menu mnuOpen{*this, "mnuOpen", "&Open Existing Menu", &mnuFile};
  Menu mnuDiv{*this, "mnuDiv", "-", &mnuFile};
  Menu mnuExit{*this, "mnuExit", "E&xit", &mnuFile};
  Menu mnuHelp{*this, "mnuHelp", "&Help"};

  Label lblInstruct{*this, "lblInstruct", "Text File (holds the menu in text format):"};
  TextBox txtImportFile{*this, "txtImportFile"};
  CommandButton cmdBrowse{*this, "cmdBrowse"};
  CommandButton cmdLoad{*this, "cmdLoad"};
  Label Label1{*this, "Label1", "Edit / Create The File Below:"};
  TextBox rtfEdit{*this, "rtfEdit"};
  CommandButton cmdSave{*this, "cmdSave"};
  Label Label2{*this, "Label2", "JavaScript Menu File To Create (HTML file):"};
  TextBox txtExportFile{*this, "txtExportFile"};
  CommandButton cmdBrowse2{*this, "cmdBrowse2"};
  CommandButton cmdCreate{*this, "cmdCreate"};
  CommandButton cmdExit{*this, "cmdExit"};
  CommonDialog MyDialog{*this};

  /// Whether `cmdBrowse` is to name a new text file, not to open one that is there.
  bool CreateNewMenu = false;

 private:
  void SetLooks();
  void Bind();
  void mnuHelp_Click();
  void cmdBrowse_Click();
  void cmdBrowse2_Click();
  void cmdLoad_Click();
  void cmdSave_Click();
  void cmdCreate_Click();
  void Browse(TextBox& field, std::string_view filter, bool (CommonDialog::*show)());
  /// Nothing for a file that is too large. Throws `Error`.
  std::optional<DecodedText> ReadText(std::string_view path);
  /// Writes `text` and a line end, in `encoding` if that can hold them. Gives the encoding that the
  /// file has. Throws `Error`.
  TextEncoding WriteText(std::string_view path, std::string text, TextEncoding encoding);
  void Inform(std::string_view prompt, std::string_view title);
  void Refuse(std::string_view prompt, std::string_view title, Control& field);

  Application& application_;
  TextEncoding encoding_ = TextEncoding::kUtf8;  ///< How the menu text came.
};

}  // namespace tagsmith::generators
