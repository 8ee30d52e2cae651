#include "generators/frmJSMenu.h"

#include <utility>

#include "core/Application.h"
#include "core/Hourglass.h"
#include "core/SupportFiles.h"
#include "core/Template.h"
#include "core/frmMain.h"
#include "generators/MenuPage.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/FileSystem.h"
#include "services/Utf8.h"

namespace tagsmith::generators {
namespace {

constexpr std::string_view kTitle = "JavaScript Menu Dialog";

/// In bytes: a file of this size is refused.
constexpr std::size_t kFileSizeLimit = 1000000;

constexpr Twips kEditWidth = 7200;
constexpr Twips kEditHeight = 3600;

constexpr std::string_view kFormat = R"(Here Is The Format For The Text File:

"Topic 1|SubPoint 1|Link For Subpoint 1|etc..."
"Topic 2|SubPoint 1|Link For Subpoint 1|etc..."


Here Is An Example:

"Download Sites|Example Site|http://www.example.com|Another Site|http://www.example.org"
)";

}  // namespace

frmJSMenu::frmJSMenu(Application& application)
    : Form(application.platform, "frmJSMenu"), application_(application) {
  SetLooks();
  SetArrangement(Column({lblInstruct, Row({txtImportFile, cmdBrowse, cmdLoad}), Label1, rtfEdit,
                         ButtonRow({cmdSave}), Label2, Row({txtExportFile, cmdBrowse2}),
                         ButtonRow({cmdCreate, cmdExit})}));
  Bind();
}

void frmJSMenu::SetLooks() {
  SetCaption(kTitle);
  cmdBrowse.SetCaption("...");
  cmdLoad.SetCaption("&Load The Text File");
  cmdSave.SetCaption("&Save The Text File");
  cmdBrowse2.SetCaption("...");
  cmdCreate.SetCaption("&Create JavaScript Menu");
  cmdExit.SetCaption("E&xit");
  rtfEdit.SetMultiLine(true);
  rtfEdit.SetWrapsLines(false);
  rtfEdit.SetFontName("Arial");
  rtfEdit.SetWidth(kEditWidth);
  rtfEdit.SetHeight(kEditHeight);
}

void frmJSMenu::Bind() {
  const auto nameNewFile = [this] { CreateNewMenu = true; };
  onLoad = nameNewFile;
  mnuFile.onClick = nameNewFile;
  mnuNew.onClick = nameNewFile;
  mnuOpen.onClick = [this] { CreateNewMenu = false; };
  mnuExit.onClick = [this] { Unload(); };
  mnuHelp.onClick = [this] { mnuHelp_Click(); };
  cmdBrowse.onClick = [this] { cmdBrowse_Click(); };
  cmdBrowse2.onClick = [this] { cmdBrowse2_Click(); };
  cmdLoad.onClick = [this] { cmdLoad_Click(); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  cmdCreate.onClick = [this] { cmdCreate_Click(); };
  cmdExit.onClick = [this] { Unload(); };
}

void frmJSMenu::Inform(std::string_view prompt, std::string_view title) {
  application_.MsgBox(*this, prompt, kInformationIcon, title);
}

void frmJSMenu::Refuse(std::string_view prompt, std::string_view title, Control& field) {
  Inform(prompt, title);
  field.SetFocus();
}

void frmJSMenu::mnuHelp_Click() {
  Inform(FillTemplate(kFormat), "JavaScript Menu Text File Format");
}

// --- Choosing files ---

void frmJSMenu::cmdBrowse_Click() {
  MyDialog.defaultExt = "txt";
  Browse(txtImportFile, "Text Files|*.txt",
         CreateNewMenu ? &CommonDialog::ShowSave : &CommonDialog::ShowOpen);
}

void frmJSMenu::cmdBrowse2_Click() {
  MyDialog.defaultExt = "html";
  Browse(txtExportFile, "HTML|*.html", &CommonDialog::ShowSave);
}

void frmJSMenu::Browse(TextBox& field, std::string_view filter, bool (CommonDialog::*show)()) {
  MyDialog.filter = filter;
  MyDialog.cancelError = false;
  MyDialog.initDir = application_.MainForm().MyDirectory.Path();
  // Offers the field's own file: the other field's would be replaced without a question.
  std::string kept = std::exchange(MyDialog.fileName, field.Text());
  if (!(MyDialog.*show)()) {
    MyDialog.fileName = std::move(kept);
  } else if (!MyDialog.fileName.empty()) {
    field.SetText(MyDialog.fileName);
  }
}

// --- The menu text ---

void frmJSMenu::cmdLoad_Click() {
  if (txtImportFile.Text().empty()) {
    return Refuse("There Is No Document To Load", "Load Aborted...", txtImportFile);
  }
  try {
    const std::optional<DecodedText> decoded = ReadText(txtImportFile.Text());
    if (!decoded) return Inform("The File Is Too Large For Tagsmith", "Sorry...");
    rtfEdit.SetText(decoded->text);
    encoding_ = decoded->encoding;
  } catch (const std::exception&) {
    Inform("Error Loading Text", "Sorry...");
  }
}

std::optional<DecodedText> frmJSMenu::ReadText(std::string_view path) {
  const Hourglass hourglass(*this);
  std::optional<std::string> bytes = application_.platform.files.ReadFile(path, kFileSizeLimit);
  if (!bytes) return std::nullopt;
  return DecodeText(*std::move(bytes));
}

TextEncoding frmJSMenu::WriteText(std::string_view path, std::string text, TextEncoding encoding) {
  const Hourglass hourglass(*this);
  const std::string bytes = EncodeText(text.append("\r\n"), encoding);
  application_.platform.files.WriteFile(path, bytes, Durability::kWritten);
  return encoding;
}

void frmJSMenu::cmdSave_Click() {
  if (txtImportFile.Text().empty()) {
    return Refuse("There Is No Document To Save", "Save Aborted...", txtImportFile);
  }
  try {
    encoding_ = WriteText(txtImportFile.Text(), rtfEdit.Text(), encoding_);
  } catch (const std::exception&) {  // Ends without a word; the old file is as it was.
    return;
  }
  Inform("The Text File Has Been Saved", kTitle);
}

// --- The page ---

void frmJSMenu::cmdCreate_Click() {
  const std::string& path = txtExportFile.Text();
  if (path.empty()) {
    return Refuse("You must supply an HTML filename for the menu", "Sorry", txtExportFile);
  }
  if (rtfEdit.Text().empty()) {
    return Refuse("You must supply a set of items to build the menu", "Sorry", rtfEdit);
  }
  try {
    WriteText(path, WithByteOrderMark(MenuPage(rtfEdit.Text())), TextEncoding::kUtf8);
    CopyMenuSupportFiles(application_, path);
  } catch (const std::exception&) {  // Ends without a word; what was written stays.
    return;
  }
  Inform("The HTML File Has Been Saved", kTitle);
}

}  // namespace tagsmith::generators
