#include "integration/BrowserCommands.h"

#include "core/Application.h"
#include "core/SettingsKeys.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "integration/frmBrowser.h"
#include "integration/frmOptions.h"
#include "integration/frmVirtualPath.h"
#include "services/Dialogs.h"
#include "services/Shell.h"

namespace tagsmith::integration {
namespace {

constexpr std::string_view kHelpPage = "helpmain.html";

// Whether the document has a file, which a new one gets here if the user wants that. What the file
// holds may be older than the text: the browser shows the file.
bool IsSaved(Application& application) {
  frmMain& form = application.MainForm();
  if (!form.HasDocument()) {
    application.MsgBox(form, "There Is No Document To Show", kInformationIcon,
                       "View In Browser Aborted...");
    return false;
  }
  if (form.DocumentName() == kNewDocument) {
    application.MsgBox(form, "You Must Save The File Before Viewing In External Browser",
                       kInformationIcon, "Notice...");
    form.mnuFileSaveAs_Click();
  }
  return form.DocumentName() != kNewDocument;
}

std::string Replaced(std::string_view text, std::string_view find, std::string_view replacement) {
  std::string result;
  while (!find.empty()) {
    const std::size_t found = text.find(find);
    if (found == std::string_view::npos) break;
    result.append(text.substr(0, found)).append(replacement);
    text.remove_prefix(found + find.size());
  }
  return result.append(text);
}

// What a browser is given for the document: its file, or where a server shows it.
std::string TargetOf(const Application& application, const std::string& document) {
  const std::string physicalPath = application.GetSetting(settings::kPhysicalPath);
  const std::string virtualPath = application.GetSetting(settings::kVirtualPath);
  if (application.GetSetting(settings::kUseVirtualPath) != settings::kYes) {
    return std::string(Trim(document));
  }
  return Replaced(document, physicalPath, virtualPath);
}

void ShowDocument(Application& application, const std::string& browserPath) {
  frmMain& form = application.MainForm();
  if (!IsSaved(application) || !HasBrowser(application, form, browserPath)) return;
  const std::string document = form.DocumentName();
  if (!FileExists(application, Trim(document))) {
    ReportMissingFile(application, form, document);
    return;
  }
  StartBrowser(application, browserPath, TargetOf(application, document));
}

void ShowInEitherBrowser(Application& application, std::string_view path) {
  auto& browser = application.Instance<frmBrowser>();
  browser.SetTag(std::string(path));
  browser.Show(Modality::kModal);
}

void mnuBrowser_Click(Application& application) {
  if (!IsSaved(application)) return;
  ShowInEitherBrowser(application, Trim(application.MainForm().DocumentName()));
}

void mnuHelpSearch_Click(Application& application) {
  ShowInEitherBrowser(application, AddBackslash(application.Path()).append(kHelpPage));
}

void cmdVirtualPath_Click(Application& application) {
  application.SaveSetting(settings::kPhysicalPath,
                          AddBackslash(application.MainForm().MyDirectory.Path()));
  application.Instance<frmVirtualPath>().Show(Modality::kModal);
}

}  // namespace

bool HasBrowser(Application& application, Form& owner, std::string_view browserPath) {
  if (!browserPath.empty()) return FileExists(application, browserPath);
  application.MsgBox(owner, "You Have Not Specified A Browser Location Under View...Define Browser",
                     kInformationIcon, "Cannot View In External Browser...");
  return false;
}

void ReportMissingFile(Application& application, Form& owner, std::string_view name) {
  application.MsgBox(owner, name, kInformationIcon, "The Following File Cannot Be Located");
}

void StartBrowser(Application& application, std::string_view browserPath, std::string_view target) {
  application.platform.shell.Start(std::string(browserPath).append(" ").append(target));
}

void BindBrowserCommands(Application& application) {
  frmMain& form = application.MainForm();
  form.cmdIE.onClick = [&application] { ShowDocument(application, application.gBrowser1Path); };
  form.cmdNN.onClick = [&application] { ShowDocument(application, application.gBrowser2Path); };
  form.mnuBrowser.onClick = [&application] { mnuBrowser_Click(application); };
  form.mnuDefineBrowsers.onClick = [&application] {
    application.Instance<frmOptions>().Show(Modality::kModal);
  };
  form.cmdVirtualPath.onClick = [&application] { cmdVirtualPath_Click(application); };
  form.mnuHelpSearch.onClick = [&application] { mnuHelpSearch_Click(application); };
  form.cmdHelp.onClick = form.mnuHelpSearch.onClick;
}

}  // namespace tagsmith::integration
