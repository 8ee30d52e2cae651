#include "core/Printing.h"

#include "core/Application.h"
#include "core/Hourglass.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/Printer.h"

namespace tagsmith {
namespace {

// No page range, the device context handed back. The flag for "no file" is among them too, but a
// desktop without a printer has only its PDF file: the dialog offers it all the same.
constexpr int kPrintDialogFlags = 1048840;

PageRequest FirstPage(Printer& printer, Twips left, Twips top, Twips right, Twips bottom) {
  const Twips offsetX = printer.OffsetX();
  const Twips offsetY = printer.OffsetY();
  PageRequest request;
  request.render = request.measure = &printer.Context();
  request.drawing = {left - offsetX, top - offsetY, printer.Width() - left - right,
                     printer.Height() - top - bottom};
  request.page = {0, 0, printer.ScaleWidth(), printer.ScaleHeight()};
  return request;
}

void PrintPages(RichTextBox& pane, Printer& printer, PageRequest request) {
  const std::size_t length = pane.TextLength();
  for (;;) {
    const std::size_t next = pane.FormatRange(request);
    if (next >= length) return;
    if (next <= request.firstCharacter) {
      throw Error(ErrorCode::kOther, "The page has no room for a line of text");
    }
    request.firstCharacter = next;
    printer.NewPage();
    request.render = request.measure = &printer.Context();
  }
}

/// Frees what the pane keeps for formatting, however the job ends.
class Formatting {
 public:
  explicit Formatting(RichTextBox& pane) : pane_(pane) {}
  ~Formatting() { pane_.EndFormatting(); }
  Formatting(const Formatting&) = delete;
  Formatting& operator=(const Formatting&) = delete;

 private:
  RichTextBox& pane_;
};

// False on Cancel, also where the fonts dialog has left the form's dialog with a Cancel that is an
// error.
bool ChoosePrinter(frmMain& form) {
  CommonDialog& dialog = form.dlgCommonDialog;
  dialog.printerDefault = true;
  dialog.flags = kPrintDialogFlags;
  if (form.txtEdit.SelLength() != 0) dialog.flags += kOfferSelection;
  try {
    return dialog.ShowPrinter();
  } catch (const Error& error) {
    if (error.Code() == ErrorCode::kCancelled) return false;
    throw;
  }
}

bool TryPrint(frmMain& form) {
  const Hourglass hourglass(form);
  if (!ChoosePrinter(form)) return false;
  PrintRichText(form.txtEdit, kTwipsPerInch, kTwipsPerInch, kTwipsPerInch, kTwipsPerInch);
  return true;
}

void mnuFilePrint_Click(frmMain& form) {
  if (!form.HasDocument()) return;
  try {
    if (TryPrint(form)) form.txtEdit.SetFocus();
  } catch (const std::exception&) {
    form.App().MsgBox(form, "Make Sure The Printer Has Paper And Is Online...", kInformationIcon,
                      "Sorry, I Cannot Print...");
  }
}

}  // namespace

void PrintRichText(RichTextBox& pane, Twips leftMargin, Twips topMargin, Twips rightMargin,
                   Twips bottomMargin) {
  Printer& printer = pane.Owner().GetPlatform().printer;
  const Formatting formatting(pane);
  printer.StartDoc();
  PrintPages(pane, printer, FirstPage(printer, leftMargin, topMargin, rightMargin, bottomMargin));
  printer.EndDoc();
}

void BindPrinting(frmMain& form) {
  form.mnuFilePrint.onClick = [&form] { mnuFilePrint_Click(form); };
  form.cmdPrint.onClick = [&form] {
    mnuFilePrint_Click(form);
    form.txtEdit.SetFocus();
  };
}

}  // namespace tagsmith
