#include "core/RecentFiles.h"

#include <algorithm>
#include <vector>

#include "core/Application.h"
#include "core/FileCommands.h"
#include "core/SettingsKeys.h"
#include "core/Sidebar.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/Dialogs.h"

namespace tagsmith {

RecentFiles::RecentFiles(frmMain& form) : form_(form), application_(form.App()) {
  form_.mnuRecentlyUsed.Bind(&Menu::onClick, [this](int index) { mnuRecentlyUsed_Click(index); });
  form_.MyTabFiles.onClick = [this](int previousTab) { MyTabFiles_Click(previousTab); };
}

void RecentFiles::ClearTabs() {
  TabFiles_.fill({});
  ShowTabCaptions();
  form_.MyTabFiles.SetTab(0);
}

void RecentFiles::ShowTabCaptions() {
  for (int i = 0; i < kTabCount; ++i) {
    const std::string& path = TabFiles_[static_cast<std::size_t>(i)];
    form_.MyTabFiles.SetTabCaption(i, ParsePath(path, kPathFileName));
  }
}

void RecentFiles::RestoreRecentlyUsed() {
  const auto& entries = form_.mnuRecentlyUsed;
  std::vector<std::string> opened;
  for (int i = 0; i < entries.Count(); ++i) {
    if (!entries(i).Caption().empty()) opened.push_back(entries(i).Caption());
    entries(i).SetCaption(application_.GetSetting(settings::kRecentlyUsed, i));
  }
  std::for_each(opened.rbegin(), opened.rend(),
                [this](const auto& path) { AddToRecentMenu(path); });
}

void RecentFiles::SaveRecentlyUsed() {
  const auto& entries = form_.mnuRecentlyUsed;
  for (int i = 0; i < entries.Count(); ++i) {
    application_.SaveSetting(settings::kRecentlyUsed, i, entries(i).Caption());
  }
}

void RecentFiles::AddToRecentMenu(std::string_view path) {
  const auto& entries = form_.mnuRecentlyUsed;
  for (int i = entries.Count() - 1; i > 0; --i) entries(i).SetCaption(entries(i - 1).Caption());
  entries(0).SetCaption(path);
}

void RecentFiles::AddToRecentlyUsed(std::string_view path) {
  AddToRecentMenu(path);
  AddFileTab(path);
}

void RecentFiles::AddFileTab(std::string_view path) {
  const auto found = std::find(TabFiles_.begin(), TabFiles_.end(), path);
  if (found != TabFiles_.end()) {
    form_.MyTabFiles.SetTab(static_cast<int>(found - TabFiles_.begin()));
    return;
  }
  std::rotate(TabFiles_.begin(), TabFiles_.end() - 1, TabFiles_.end());
  TabFiles_.front() = path;
  ShowTabCaptions();
}

void RecentFiles::mnuRecentlyUsed_Click(int index) {
  // A save on the way may push the entry down.
  const std::string path = form_.mnuRecentlyUsed(index).Caption();
  if (path.empty()) return;
  if (!FileExists(application_, path)) {
    application_.MsgBox(form_, "The Specified File Cannot Be Found", kInformationIcon,
                        "Error Loading File...");
    return;
  }
  if (!form_.ConfirmLosingEdits(kOpeningPrompt)) return;
  form_.MarkUnchanged();
  if (!form_.LoadText(path)) return;
  form_.SetDocumentName(path);
  form_.Lists().SyncFileBoxes(path);
  AddFileTab(path);
}

void RecentFiles::MyTabFiles_Click(int previousTab) {
  const SSTab& tabs = form_.MyTabFiles;
  if (previousTab == tabs.Tab() || tabs.TabCaption(tabs.Tab()).empty()) return;
  if (!form_.ConfirmLosingEdits(kOpeningPrompt)) return;
  form_.MarkUnchanged();
  const std::string path = TabFiles_[static_cast<std::size_t>(tabs.Tab())];
  if (!form_.LoadText(path)) return;
  form_.SetDocumentName(path);
  form_.Lists().SyncFileBoxes(path);
}

}  // namespace tagsmith
