#include "core/frmMain.h"

#include "core/Application.h"
#include "core/EditingCommands.h"
#include "core/FileCommands.h"
#include "core/MainLayout.h"
#include "core/Printing.h"
#include "core/RecentFiles.h"
#include "core/SettingsKeys.h"
#include "core/Sidebar.h"
#include "core/general1.h"

namespace tagsmith {
namespace {

// Twips. What the rules below leave between a control and the form's outer edges.
constexpr Twips kMinWidth = 9500;
constexpr Twips kMinHeight = 4600;
constexpr Twips kSplitterMargin = 500;

// The filter of Open and Save As: caption, patterns.
constexpr std::string_view kFileFilter =
    "HTML Files|*.html;*.htm"
    "|JavaScripts|*.js"
    "|VBScripts|*.vbs"
    "|Perl Scripts|*.pl"
    "|PHP Scripts|*.php;*.phtml;*.php3"
    "|Active Server Pages|*.asp"
    "|Include Files|*.inc"
    "|TCL Scripts|*.tcl;*.tk"
    "|Text Files|*.txt"
    "|All Files|*.*";

void Run(const std::function<void()>& step) {
  if (step) step();
}

}  // namespace

frmMain::frmMain(Application& application)
    : Form(application.platform, "frmMain"),
      MainMenu(static_cast<Form&>(*this)),
      application_(application) {
  application_.SetMainForm(*this);
  ApplyMainLayout(*this);
  SetCaption(kApplicationTitle);
  fileCommands_ = std::make_unique<FileCommands>(*this);
  recentFiles_ = std::make_unique<RecentFiles>(*this);
  sidebar_ = std::make_unique<Sidebar>(*this);
  editingCommands_ = std::make_unique<EditingCommands>(*this);
  BindPrinting(*this);
  BindEvents();
}

frmMain::~frmMain() = default;

void frmMain::BindEvents() {
  onLoad = [this] { Form_Load(); };
  onResize = [this] { Form_Resize(); };
  onUnload = [this](bool& cancel) { Form_Unload(cancel); };
  mnuFileExit.onClick = [this] { Unload(); };
  txtEdit.onChange = [this] { txtEdit_Change(); };
  for (SSTab* strip : {&MyOuterTab, &MyTab, &MyTabScript}) {
    strip->onGotFocus = [this] { txtEdit.SetFocus(); };
  }
  lblResizer.onMouseDown = [this](int button, Twips, Twips) {
    if (button == kLeftButton) splitterMoving_ = true;
  };
  lblResizer.onMouseMove = [this](int, Twips x, Twips) { lblResizer_MouseMove(x); };
  lblResizer.onMouseUp = [this](int, Twips, Twips) { splitterMoving_ = false; };
}

// --- Start and end ---

void frmMain::Form_Load() {
  InitializeLoad();
  InitializeRestore();
  Show();
  // A window that comes onto the screen is laid out by the same rule as one that changes its size.
  Form_Resize();
  MyImage.SetTop(10);
  MyImage.SetLeft(10);
  editingCommands_->RestoreFontInfo();
  formLoaded_ = true;
}

void frmMain::InitializeLoad() {
  application_.gFileFilter = kFileFilter;
  application_.gBlockCommentSymbol = application_.GetSetting(settings::kBlockComment);
  Run(startup.loadUserButtons);
  Run(startup.assignUserToolTips);
  recentFiles_->ClearTabs();
  Run(startup.fillCatalogs);
  OpenFirstDocument();
}

void frmMain::InitializeRestore() {
  RestoreBrowserSettings();
  sidebar_->RestoreDriveAndDir();
  recentFiles_->RestoreRecentlyUsed();
  GetMainOptions();
}

// The whole tail is one path. Its blanks are taken off for the file and the document's name; the
// lists, the tab and the Recent menu get it as it came.
void frmMain::OpenFirstDocument() {
  const std::string& tail = application_.platform.commandTail;
  const std::string path(Trim(tail));
  if (!FileExists(application_, path)) {
    fileCommands_->StartFromTemplate();
    if (!tail.empty()) sidebar_->SyncFileBoxes(AddBackslash(application_.Path()));
    return;
  }
  if (LoadText(path)) {
    SetDocumentName(path);
  } else {
    fileCommands_->StartFromTemplate();
  }
  sidebar_->SyncFileBoxes(tail);
  recentFiles_->AddFileTab(tail);
  recentFiles_->AddToRecentlyUsed(tail);
}

void frmMain::RestoreBrowserSettings() {
  application_.gBrowser1Path = application_.GetSetting(settings::kBrowser1);
  application_.gBrowser2Path = application_.GetSetting(settings::kBrowser2);
}

void frmMain::GetMainOptions() {
  application_.gIncludeIdAttribute =
      application_.GetSetting(settings::kIdAttribute) == settings::kTrue;
  application_.gIncludeHeightWidth =
      application_.GetSetting(settings::kHeightWidth) == settings::kTrue;
}

void frmMain::Form_Unload(bool& cancel) {
  if (!ConfirmLosingEdits("Save Current Before Closing?")) {
    cancel = true;
    return;
  }
  sidebar_->SaveDriveAndDir();
  recentFiles_->SaveRecentlyUsed();
  application_.platform.forms.UnloadAll();
}

// --- Geometry ---

void frmMain::Form_Resize() {
  if (IsMinimized()) return;
  if (Width() < kMinWidth) SetWidth(kMinWidth);
  if (Height() < kMinHeight) SetHeight(kMinHeight);
  MyOuterTab.SetWidth(Width() - 195);
  MyTab.SetWidth(MyOuterTab.Width() - 630);
  MyTabScript.SetWidth(MyTab.Width());
  MyTabFiles.SetTop(Height() - 1295);
  MyTabFiles.SetWidth(Width() - 2340);
  txtEdit.SetHeight(Height() - (MyTabFiles.Height() + 2765));
  txtEdit.SetWidth(Width() - 2340);
  cmdHelp.SetLeft(Width() - 578);
  MyFileList.SetHeight(Height() - 4650);
  lblResizer.SetHeight(Height() - 2280);
}

void frmMain::lblResizer_MouseMove(Twips x) {
  const Twips place = lblResizer.Left() + x;
  const Twips inner = ScaleWidth();
  if (!splitterMoving_ || place < kSplitterMargin || place > inner - kSplitterMargin) return;
  MyDrive.SetWidth(place - 50);
  MyDirectory.SetWidth(place - 50);
  MyFileList.SetWidth(place - 50);
  txtEdit.SetWidth(inner - place - 150);
  txtEdit.SetLeft(place + 50);
  MyTabFiles.SetWidth(inner - place - 150);
  MyTabFiles.SetLeft(place + 50);
  lblResizer.SetLeft(place);
}

// --- The document ---

void frmMain::SetDocumentName(std::string_view name) {
  const bool wasClosed = !HasDocument();
  sbStatusBar.SetSimpleText(name);
  name == kNoDocument ? SetCaption(kApplicationTitle) : ShowInCaption(name);
  // Closing took the focus off the pane: whoever opens a document then means to type in it.
  if (wasClosed && HasDocument() && ActiveControl() == nullptr) txtEdit.SetFocus();
}

void frmMain::ShowInCaption(std::string_view name) {
  SetCaption(std::string(kApplicationTitle).append(" - ").append(name));
}

void frmMain::MarkChanged() {
  documentChanged_ = true;
  cmdSave.SetEnabled(true);
}

void frmMain::MarkUnchanged() {
  documentChanged_ = false;
  cmdSave.SetEnabled(false);
}

void frmMain::txtEdit_Change() {
  if (!formLoaded_) return;
  // What the user drops or pastes into a closed pane is a new document, not nobody's.
  if (!HasDocument() && txtEdit.TextLength() > 0) SetDocumentName(kNewDocument);
  MarkChanged();
}

void frmMain::ReplaceDocument(std::string_view text) {
  SetDocumentName(kNewDocument);  // First, so that the focus starts no other document.
  SetDocumentEncoding(TextEncoding::kUtf8);
  txtEdit.SetText("");
  InsertText(text);
  txtEdit.EmptyUndoHistory();
  MarkUnchanged();
}

bool frmMain::LoadText(std::string_view path) { return fileCommands_->LoadText(path); }

bool frmMain::ConfirmLosingEdits(std::string_view prompt) {
  return fileCommands_->ConfirmLosingEdits(prompt);
}

void frmMain::mnuFileNew_Click() { fileCommands_->mnuFileNew_Click(); }
void frmMain::mnuFileSave_Click() { fileCommands_->mnuFileSave_Click(); }
void frmMain::mnuFileSaveAs_Click() { fileCommands_->mnuFileSaveAs_Click(); }

}  // namespace tagsmith
