#include "generators/frmPHPDataDialog.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "core/Application.h"
#include "core/FileLists.h"
#include "core/Hourglass.h"
#include "core/general1.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/FileSystem.h"
#include "services/TextEncoding.h"

namespace tagsmith::generators {
namespace {

constexpr Twips kDirectoryWidth = 3000;

constexpr std::string_view kTitle = "PHP Database Dialog";

// In bytes. No project comes near it, and a disk image that was picked by mistake is not read into
// memory.
constexpr std::size_t kProjectSizeLimit = std::size_t{64} << 20U;

constexpr int kAddBox = 0;
constexpr int kUpdateBox = 1;
constexpr int kDeleteBox = 3;
constexpr int kListAllBox = 4;
constexpr int kMenuBox = 5;

struct PageType {
  int box;
  std::vector<GeneratedFile> (*pages)(const PhpSite&);
};

// In the order of writing.
constexpr PageType kPageTypes[] = {{kAddBox, AddPages},
                                   {kUpdateBox, UpdatePages},
                                   {kDeleteBox, DeletePages},
                                   {kListAllBox, ListAllPages},
                                   {kMenuBox, MenuPages}};

}  // namespace

frmPHPDataDialog::frmPHPDataDialog(Application& application)
    : Form(application.platform, "frmPHPDataDialog"), application_(application) {
  SetCaption(kTitle);
  txtFields.SetMultiLine(true);
  cmdLoad.SetCaption("&Load");
  cmdSave.SetCaption("&Save");
  cmdCreate.SetCaption("&Create");
  cmdExit.SetCaption("E&xit");
  for (CheckBox& page : pages_) page.SetValue(1);
  MyDialog.filter = "Text Files|*.txt";
  MyDialog.defaultExt = "txt";
  MyDirectory.SetWidth(kDirectoryWidth);
  SetArrangement(Arranged());
  Bind();
}

Arrangement frmPHPDataDialog::Arranged() {
  return Column(
      {Row({Group(fraOutputOptions, Column({MyDrive, MyDirectory})),
            Group(fraDBInfo, Column({Grid(2, {Label1, txtDSN, Label2, txtUserName, Label3,
                                              txtPassword, Label6, txtTable}),
                                     Label4, txtFields, ButtonRow({cmdLoad, cmdSave})}))}),
       Group(fraPages, Row({pages_[0], pages_[1], pages_[2], pages_[3], pages_[4]})), Label5,
       ButtonRow({cmdCreate, cmdExit})});
}

void frmPHPDataDialog::Bind() {
  const FileLists lists{*this, MyDrive, MyDirectory};
  onLoad = [this, lists] { OpenAtMainForm(application_, lists); };
  // The pages go where the list is open, not to what is selected in it.
  ChainFileLists(application_, lists, [this] { MyDirectory.SetToolTipText(MyDirectory.Path()); });
  cmdLoad.onClick = [this] { cmdLoad_Click(); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  cmdCreate.onClick = [this] { cmdCreate_Click(); };
  cmdExit.onClick = [this] { Unload(); };
}

void frmPHPDataDialog::Inform(std::string_view prompt) {
  application_.MsgBox(*this, prompt, kInformationIcon, kTitle);
}

// --- The pages ---

void frmPHPDataDialog::Fill_Arrays() { FieldArray = SplitFields(txtFields.Text()); }

PhpSite frmPHPDataDialog::Site() const {
  const auto isChecked = [this](int box) { return chkPages(box).Value() != 0; };
  PhpSite site;
  site.dsn = txtDSN.Text();
  site.user = txtUserName.Text();
  site.password = txtPassword.Text();
  site.table = txtTable.Text();
  site.fieldArray = FieldArray;
  site.hasAdd = isChecked(kAddBox);
  site.hasUpdate = isChecked(kUpdateBox);
  site.hasDelete = isChecked(kDeleteBox);
  site.hasListAll = isChecked(kListAllBox);
  site.hasMenu = isChecked(kMenuBox);
  return site;
}

void frmPHPDataDialog::cmdCreate_Click() {
  Fill_Arrays();
  const PhpSite site = Site();
  for (const PageType& type : kPageTypes) {
    if (chkPages(type.box).Value() == 0) continue;
    for (const GeneratedFile& file : type.pages(site)) {
      SaveTheFile(AddBackslash(MyDirectory.Path()) + file.name, file.text);
    }
  }
  Inform("The Pages Have Been Created");
}

void frmPHPDataDialog::SaveTheFile(std::string_view FileName, std::string_view Text) {
  const Hourglass hourglass(*this);
  try {
    TextEncoding encoding = TextEncoding::kUtf8;
    const std::string bytes = EncodeText(std::string(Text) + "\r\n", encoding);
    application_.platform.files.WriteFile(FileName, bytes, Durability::kWritten);
  } catch (const std::exception&) {  // The next page is tried all the same.
  }
}

// --- The project file ---

std::optional<PhpProject> frmPHPDataDialog::LoadProject() const {
  try {
    std::optional<std::string> bytes =
        application_.platform.files.ReadFile(MyDialog.fileName, kProjectSizeLimit);
    return bytes ? ReadProject(DecodeText(*std::move(bytes)).text) : std::nullopt;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

void frmPHPDataDialog::cmdLoad_Click() {
  MyDialog.initDir = MyDirectory.Path();
  MyDialog.ShowOpen();  // A cancel repeats the file that was chosen before.
  if (MyDialog.fileName.empty()) return;
  const std::optional<PhpProject> project = LoadProject();
  if (!project) {
    Inform("Could Not Load The File");
    return;
  }
  txtDSN.SetText(project->dsn);
  txtTable.SetText(project->table);
  txtUserName.SetText(project->user);
  txtPassword.SetText(project->password);
  txtFields.SetText(project->fields);
}

void frmPHPDataDialog::cmdSave_Click() {
  MyDialog.initDir = MyDirectory.Path();
  MyDialog.ShowSave();  // A cancel repeats the file that was chosen before.
  if (MyDialog.fileName.empty()) return;
  try {
    TextEncoding encoding = TextEncoding::kUtf8;
    const std::string text = WriteProject(
        {txtDSN.Text(), txtTable.Text(), txtUserName.Text(), txtPassword.Text(), txtFields.Text()});
    application_.platform.files.WriteFile(MyDialog.fileName, EncodeText(text, encoding),
                                          Durability::kWritten);
    Inform("The File Has Been Saved");
  } catch (const std::exception&) {
    Inform("Could Not Save The File");
  }
}

}  // namespace tagsmith::generators
