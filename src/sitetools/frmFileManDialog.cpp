#include "sitetools/frmFileManDialog.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>

#include "core/Application.h"
#include "core/FileLists.h"
#include "core/SupportFiles.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/EventQueue.h"
#include "services/FileSystem.h"
#include "services/TextEncoding.h"
#include "sitetools/PaintPace.h"
#include "sitetools/frmExportWizard.h"

namespace tagsmith::sitetools {
namespace {

constexpr Twips kDirectoryWidth = 3000;

constexpr std::string_view kTitle = "File Management Dialog";
constexpr std::string_view kDefaultFormat = "EMenu";

struct Emitter {
  std::string_view name;
  void (frmFileManDialog::*emit)();
};

constexpr Emitter kEmitters[] = {{"EMenu", &frmFileManDialog::EMenu},
                                 {"IList", &frmFileManDialog::IList},
                                 {"UList", &frmFileManDialog::UList},
                                 {"OList", &frmFileManDialog::OList}};

}  // namespace

/// A page in the making, on show in the form. The lists go along with it, but what it reads is its
/// own. They come back to the chosen directory with its end.
class frmFileManDialog::Run : public IndexWatcher {
 public:
  explicit Run(frmFileManDialog& form)
      : form_(form),
        chosen_(form.MyDirectory.Path()),
        shown_(chosen_),
        drive_(form.MyDrive.Drive()) {
    form_.run_ = this;
  }
  ~Run() override {
    form_.run_ = nullptr;
    if (form_.IsLoaded()) ShowDirectory(chosen_);
  }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  const std::string& Chosen() const { return chosen_; }

  // --- A list has changed: what the user did to it is taken back ---

  void OnDriveList() {
    if (!changing_) Change([this] { form_.MyDrive.SetDrive(drive_); });
  }
  void OnDirectoryList() {
    if (!changing_) ShowDirectory(shown_);
  }

  // --- IndexWatcher ---

  void OnStart(std::size_t count) override {
    form_.MyProgress.SetMin(0);
    form_.MyProgress.SetMax(std::max(static_cast<int>(count) - 1, 1));
  }
  void OnDirectory(std::size_t index, std::string_view path) override {
    form_.MyProgress.SetValue(static_cast<int>(index));
    pace_.Step([&] { ShowDirectory(path); });
  }
  bool OnFile() override {
    form_.application_.platform.events.DoEvents();
    return form_.IsLoaded();
  }

 private:
  void ShowDirectory(std::string_view path) {
    shown_ = path;
    Change([this] { form_.MyDirectory.SetPath(shown_); });
  }
  void Change(const std::function<void()>& change) {
    changing_ = true;
    try {
      change();
    } catch (const Error&) {  // Gone meanwhile. The reading tells it, if it matters.
    }
    changing_ = false;
  }

  frmFileManDialog& form_;
  std::string chosen_;
  std::string shown_;
  std::string drive_;
  bool changing_ = false;  ///< It is the run that changes a list.
  PaintPace pace_{form_};
};

frmFileManDialog::frmFileManDialog(Application& application)
    : Form(application.platform, "frmFileManDialog"), application_(application) {
  SetLooks();
  SetArrangement(Arranged());
  Bind();
}

void frmFileManDialog::SetLooks() {
  SetCaption(kTitle);
  cmdBrowse.SetCaption("...");
  cmdStart.SetCaption("&Start");
  cmdCancel.SetCaption("E&xit");
  cmdBack.SetCaption("< <  &Back");
  MyDialog.defaultExt = ".html";
  MyDialog.dialogTitle = "File To Create";
  MyDialog.mayBeNew = true;
  MyDirectory.SetWidth(kDirectoryWidth);
  SetDefaultButton(cmdStart);
}

Arrangement frmFileManDialog::Arranged() {
  return Column({Label1, Row({Column({MyDrive, MyDirectory}), MyFiles}), chkUnderline,
                 lblFileToExport, Row({txtFileName, cmdBrowse}), Label2, MyProgress,
                 ButtonRow({cmdBack, cmdStart, cmdCancel})});
}

void frmFileManDialog::Bind() {
  ChainFileLists(application_, {*this, MyDrive, MyDirectory, &MyFiles}, [this] {
    if (run_ != nullptr) run_->OnDirectoryList();
  });
  MyDrive.onChange = [this, open = MyDrive.onChange.Bound()] {
    run_ != nullptr ? run_->OnDriveList() : open();
  };
  mnuAbout.onClick = [this] { mnuAbout_Click(); };
  cmdBrowse.onClick = [this] { cmdBrowse_Click(); };
  const auto bind = [this](CommandButton& button, auto command) {
    button.onClick = [this, command] {
      if (run_ == nullptr) command();
    };
  };
  bind(cmdStart, [this] { cmdStart_Click(); });
  bind(cmdBack, [this] { cmdBack_Click(); });
  bind(cmdCancel, [this] { Unload(); });
}

void frmFileManDialog::Inform(std::string_view prompt, std::string_view title) {
  application_.MsgBox(*this, prompt, kInformationIcon, title);
}

void frmFileManDialog::mnuAbout_Click() {
  Inform("Program: File Management Dialog\r\nVersion: 1.0", "About ...");
}

void frmFileManDialog::cmdBrowse_Click() {
  MyDialog.filter = "HTML Files|*.html";
  MyDialog.initDir = MyDirectory.Path();
  try {
    if (MyDialog.ShowOpen() && !MyDialog.fileName.empty()) txtFileName.SetText(MyDialog.fileName);
  } catch (const Error&) {  // As after a cancel.
  }
}

void frmFileManDialog::cmdBack_Click() {
  application_.Instance<frmExportWizard>().Show();
  Unload();
}

// --- The page ---

void frmFileManDialog::cmdStart_Click() {
  if (txtFileName.Text().empty()) {
    Inform("You must supply a file to create", kTitle);
    txtFileName.SetFocus();
    return;
  }
  std::string& format = application_.gExportFormat;
  if (format.empty()) format = kDefaultFormat;
  for (const Emitter& emitter : kEmitters) {
    if (emitter.name == format) return (this->*emitter.emit)();
  }
}

bool frmFileManDialog::WritePage(IndexFormat format) {
  std::optional<std::string> page;
  {
    Run run(*this);
    page = BuildIndexPage(application_.platform.files, run.Chosen(), format,
                          chkUnderline.Value() != 0, run);
  }
  if (page) SaveText(txtFileName.Text(), *page);
  return page.has_value();
}

void frmFileManDialog::SaveText(std::string_view FileName, std::string_view Text) {
  try {
    TextEncoding encoding = TextEncoding::kUtf8;
    const std::string bytes = EncodeText(std::string(Text) + "\r\n", encoding);
    application_.platform.files.WriteFile(FileName, bytes, Durability::kWritten);
  } catch (const std::exception&) {  // Ends without a word.
  }
}

void frmFileManDialog::EMenu() {
  try {
    if (!WritePage(IndexFormat::kEMenu)) return;
    CopyMenuSupportFiles(application_, txtFileName.Text());
  } catch (const std::exception&) {
    return Inform("There was an error in creating the file", "Sorry...");
  }
  Inform("The HTML File Has Been Created", kTitle);
}

void frmFileManDialog::WriteList(IndexFormat format) {
  if (WritePage(format)) Inform("The HTML File Has Been Created", kTitle);
}

void frmFileManDialog::IList() { WriteList(IndexFormat::kIList); }
void frmFileManDialog::UList() { WriteList(IndexFormat::kUList); }
void frmFileManDialog::OList() { WriteList(IndexFormat::kOList); }

}  // namespace tagsmith::sitetools
