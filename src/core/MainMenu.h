#pragma once

#include "services/ControlArray.h"
#include "services/Form.h"
#include "services/Menu.h"

namespace tagsmith {

/// The menu bar of the main form: one row an entry, in the order of the menus. The blanks before a
/// key in a caption belong to it; the pane itself owns those keys.
class MainMenu {
 protected:
  explicit MainMenu(Form& form) : form_(form) {}

 private:
  Form& form_;

 public:
  Menu mnuFile{form_, "mnuFile", "&File"};
  Menu mnuFileNew{form_, "mnuFileNew", "&New", &mnuFile, "Ctrl+N"};
  Menu mnuFileOpen{form_, "mnuFileOpen", "&Open", &mnuFile, "Ctrl+O"};
  Menu mnuFileClose{form_, "mnuFileClose", "&Close", &mnuFile};
  Menu mnuFileBar1{form_, "mnuFileBar1", "-", &mnuFile};
  Menu mnuFileSave{form_, "mnuFileSave", "&Save", &mnuFile, "Ctrl+S"};
  Menu mnuFileSaveAs{form_, "mnuFileSaveAs", "Save &As...", &mnuFile};
  Menu mnuSaveAsUnix{form_, "mnuSaveAsUnix", "Save As Unix", &mnuFile};
  Menu mnuDiv5{form_, "mnuDiv5", "-", &mnuFile};
  Menu mnuFilePrint{form_, "mnuFilePrint", "&Print...", &mnuFile, "Ctrl+P"};
  Menu mnuFileBar5{form_, "mnuFileBar5", "-", &mnuFile};
  Menu mnuFileExit{form_, "mnuFileExit", "E&xit", &mnuFile};

  Menu mnuEdit{form_, "mnuEdit", "&Edit"};
  Menu mnuEditUndo{form_, "mnuEditUndo", "&Undo         Ctrl+Z", &mnuEdit};
  Menu mnuEditBar1{form_, "mnuEditBar1", "-", &mnuEdit};
  Menu mnuEditCut{form_, "mnuEditCut", "Cu&t            Ctrl+X", &mnuEdit};
  Menu mnuEditCopy{form_, "mnuEditCopy", "&Copy         Ctrl+C", &mnuEdit};
  Menu mnuEditPaste{form_, "mnuEditPaste", "&Paste        Ctrl+V", &mnuEdit};
  Menu mnuDiv77{form_, "mnuDiv77", "-", &mnuEdit};
  Menu mnuFind{form_, "mnuFind", "&Find", &mnuEdit};
  Menu mnuReplace{form_, "mnuReplace", "&Replace", &mnuEdit};
  Menu mnuDiv75{form_, "mnuDiv75", "-", &mnuEdit};
  Menu mnuInsertDate{form_, "mnuInsertDate", "Insert &Date", &mnuEdit, "Ctrl+D"};
  Menu mnuRefreshDriveLists{form_, "mnuRefreshDriveLists", "Refresh", &mnuEdit, "F5"};
  Menu mnuCheckSpelling{form_, "mnuCheckSpelling", "&Check Spelling", &mnuEdit, "F7"};
  Menu mnuDivider33{form_, "mnuDivider33", "-", &mnuEdit};
  Menu mnuGotoLine{form_, "mnuGotoLine", "&Goto Line", &mnuEdit};

  Menu mnuView{form_, "mnuView", "&View"};
  Menu mnuBrowser{form_, "mnuBrowser", "&In Browser", &mnuView};
  Menu mnuViewBar2{form_, "mnuViewBar2", "-", &mnuView};
  Menu mnuDefineBrowsers{form_, "mnuDefineBrowsers", "&Define Browsers", &mnuView};
  Menu mnuUserButtons{form_, "mnuUserButtons", "Define &User Buttons", &mnuView};
  Menu mnuFonts{form_, "mnuFonts", "&Fonts", &mnuView};
  Menu mnuViewPic{form_, "mnuViewPic", "&Picture", &mnuView};
  Menu mnuDive1{form_, "mnuDive1", "-", &mnuView};
  Menu mnuOptions{form_, "mnuOptions", "&Options", &mnuView};

  static constexpr int kRecentCount = 10;
  Menu mnuRecent{form_, "mnuRecent", "&Recent"};
  /// The captions are the list of recent files, newest first; empty for a free entry.
  ControlArray<Menu> mnuRecentlyUsed{form_, "mnuRecentlyUsed", kRecentCount, "", &mnuRecent, ""};

  Menu mnuHelp{form_, "mnuHelp", "&Help"};
  Menu mnuHelpSearch{form_, "mnuHelpSearch", "&Search For Help On...", &mnuHelp};
  Menu MyDiv{form_, "MyDiv", "-", &mnuHelp};
  Menu mnuHelpAbout{form_, "mnuHelpAbout", "&About Tagsmith...", &mnuHelp};
};

}  // namespace tagsmith
