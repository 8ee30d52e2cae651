#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "services/Platform.h"

namespace tagsmith {

class Form;
class frmMain;
struct Setting;

constexpr int kUserButtonCount = 10;

/// What crosses forms: the desktop's services, the main form, the one instance of each other form,
/// and the public variables through which a dialog and its caller talk.
class Application {
 public:
  /// `platform` outlives the application.
  explicit Application(Platform& services) : platform(services) {}
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  Platform& platform;

  /// The main form (`gMainForm`); it is there from `SetMainForm` on.
  frmMain& MainForm() const { return *gMainForm_; }
  void SetMainForm(frmMain& form) { gMainForm_ = &form; }

  /// The one instance of the form `T`, made and loaded if there is none.
  template <class T>
  T& Instance() {
    return platform.forms.Reach<T>(*this);
  }

  /// The folder of the program's own files, without a backslash behind it.
  const std::string& Path() const { return platform.applicationPath; }
  std::string Title() const { return kApplicationTitle; }

  // --- Settings, under the application's title ---

  std::string GetSetting(std::string_view section, std::string_view key,
                         std::string_view fallback) const;
  void SaveSetting(std::string_view section, std::string_view key, std::string_view value);
  std::string GetSetting(const Setting& setting) const;
  void SaveSetting(const Setting& setting, std::string_view value);
  /// One of a row of settings: `number` is put behind the key.
  std::string GetSetting(const Setting& setting, int number) const;
  void SaveSetting(const Setting& setting, int number, std::string_view value);

  // --- Questions; `owner` is the form that asks ---

  /// As `Dialogs::MsgBox`.
  int MsgBox(Form& owner, std::string_view prompt, int flags, std::string_view title);
  /// As `Dialogs::InputBox`.
  std::string InputBox(Form& owner, std::string_view prompt, std::string_view title,
                       std::string_view initial = {});

  // --- The public variables ---

  int gListItemCount = 0;
  std::string gResultText;    ///< Markup that a dialog hands back; empty for nothing.
  std::string gColorValue;    ///< A colour text; "-1" after a cancel.
  std::string gSelectedText;  ///< The pane's selection when the dialog was called.
  int gListKind = 0;          ///< 0, 1 or 2; -1 after a cancel.
  std::string gListStart;     ///< The numbering style of an ordered list.
  std::string gBrowser1Path;
  std::string gBrowser2Path;
  std::array<std::string, kUserButtonCount> gUserOpenTags;
  std::array<std::string, kUserButtonCount> gUserCloseTags;
  bool gIncludeIdAttribute = false;
  bool gIncludeHeightWidth = false;
  std::string gExportFormat;  ///< "EMenu", "IList", "UList" or "OList"; empty counts as "EMenu".
  std::string gDateText;      ///< Empty after a cancel.
  std::string gFileFilter;    ///< For the file dialogs of the main form.
  std::string gBlockCommentSymbol;
  /// Where frmFind found its text last: 1 for the first byte of the document, 0 for nowhere. It
  /// outlives the form and takes no notice of edits.
  std::int32_t FoundPos = 0;

 private:
  void TellOfLostSettings();

  frmMain* gMainForm_ = nullptr;
  bool toldOfLostSettings_ = false;
};

}  // namespace tagsmith
