#pragma once

#include <string>

#include "services/Units.h"

namespace tagsmith {

class Form;

/// `Flags` values.
constexpr int kStartFromColor = 1;  ///< The colour dialog starts from `color`, not from black.
constexpr int kScreenAndPrinterFonts = 3;
constexpr int kOfferSelection = 1;  ///< The print dialog offers to print the selection alone.

/// The desktop's file, colour and font dialogs, with the properties that go in and come out. Each
/// Show call gives false on Cancel, after which the properties stay as they were; with
/// `cancelError` a Cancel throws `Error` (kCancelled) instead.
class CommonDialog {
 public:
  /// `owner` is the form that asks.
  explicit CommonDialog(Form& owner) : owner_(owner) {}

  std::string fileName;  ///< Full path.
  std::string filter;    ///< Caption and pattern pairs, all joined by bars.
  std::string initDir;
  std::string dialogTitle;
  std::string defaultExt;
  bool mayBeNew = false;  ///< Whether Open takes the name of a file that is not there yet.
  int flags = 0;
  bool cancelError = false;
  bool printerDefault = true;  ///< What the print dialog sets up holds for the printer.
  Colour color = kBlack;
  FontSpec font;

  bool ShowOpen();
  bool ShowSave();
  bool ShowColor();
  bool ShowFont();
  bool ShowPrinter();

 private:
  bool Cancelled() const;

  Form& owner_;
};

}  // namespace tagsmith
