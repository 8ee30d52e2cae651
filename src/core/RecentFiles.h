#pragma once

#include <array>
#include <string>
#include <string_view>

namespace tagsmith {

class Application;
class frmMain;

/// Two short memories of files: the Recent menu, whose captions are ten paths kept across runs, and
/// the tab strip under the pane, which keeps five paths of this run.
class RecentFiles {
 public:
  explicit RecentFiles(frmMain& form);

  /// Frees all five tabs and selects the first.
  void ClearTabs();
  /// Fills the Recent menu from the settings; what stands in it already stays on top.
  void RestoreRecentlyUsed();
  void SaveRecentlyUsed();
  /// Puts a path on top of the Recent menu, once more if it is there already, and into the tabs.
  void AddToRecentlyUsed(std::string_view path);
  /// Puts a path on top of the Recent menu alone: for a file that could not be loaded.
  void AddToRecentMenu(std::string_view path);
  /// Selects the tab of the path, which loads its file if another was selected; a path without a
  /// tab gets the first one and pushes the others along.
  void AddFileTab(std::string_view path);

 private:
  static constexpr int kTabCount = 5;

  void ShowTabCaptions();
  void mnuRecentlyUsed_Click(int index);
  void MyTabFiles_Click(int previousTab);

  frmMain& form_;
  Application& application_;
  std::array<std::string, kTabCount> TabFiles_;  ///< Full paths; empty for a free tab.
};

}  // namespace tagsmith
