#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/Units.h"

namespace tagsmith {

class Form;

/// Message box flags: buttons and icon, added up.
constexpr int kOkOnly = 0;
constexpr int kYesNoCancel = 3;
constexpr int kYesNo = 4;
constexpr int kQuestionIcon = 32;
constexpr int kInformationIcon = 64;

/// Message box answers.
constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kYes = 6;
constexpr int kNo = 7;

/// What a file dialog starts from. All paths are system paths.
struct FileDialogRequest {
  std::string title;   ///< Empty for the desktop's own.
  std::string filter;  ///< Caption and pattern pairs, all joined by bars; "*.*" is all files.
  std::string initialDirectory;  ///< Empty for the desktop's own.
  std::string fileName;          ///< Empty for none.
  std::string defaultExtension;  ///< Appended to a new name that has no dot; empty for none.
  bool mayBeNew = false;         ///< Whether a file that is not there yet may be opened.
};

/// The questions that the system asks in windows of the desktop's own. Each call blocks until the
/// user has answered. `owner` is the form that asks: the window stands above it.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// Gives kOk, kCancel, kYes or kNo; the title bar's close button counts as Cancel or, where
  /// there is no Cancel, as OK; a box with Yes and No alone has to be answered. Line breaks in
  /// `prompt` are shown.
  virtual int MsgBox(Form& owner, std::string_view prompt, int flags, std::string_view title) = 0;

  /// Gives the typed text; Cancel gives the empty text.
  virtual std::string InputBox(Form& owner, std::string_view prompt, std::string_view title,
                               std::string_view initial) = 0;

  /// The chosen file's full path, or nothing on Cancel. `SaveFile` never asks about overwriting.
  virtual std::optional<std::string> OpenFile(Form& owner, const FileDialogRequest& request) = 0;
  virtual std::optional<std::string> SaveFile(Form& owner, const FileDialogRequest& request) = 0;

  /// The chosen colour or font, or nothing on Cancel.
  virtual std::optional<Colour> PickColour(Form& owner, Colour start) = 0;
  virtual std::optional<FontSpec> PickFont(Form& owner, const FontSpec& start) = 0;

  /// Lets the user choose and set up the printer; false on Cancel. `offerSelection` tells whether
  /// there is a selection that could be printed alone. Throws `Error` when there is no dialog.
  virtual bool PickPrinter(Form& owner, bool offerSelection) = 0;
};

}  // namespace tagsmith
