#include <optional>
#include <string>

#include "core/Application.h"
#include "core/frmMain.h"
#include "services/Clipboard.h"
#include "services/Error.h"

namespace tagsmith {
namespace {

/// An object whose lifetime is that of a text on the clipboard; the text that was there before
/// comes back at its end, and nothing else. A clipboard that cannot be opened is left alone.
class ClipboardLoan {
 public:
  ClipboardLoan(Clipboard& clipboard, std::string_view text) : clipboard_(clipboard) {
    try {
      kept_ = clipboard_.GetText();
      clipboard_.SetText(text);
      lent_ = true;
    } catch (const Error&) {  // The text goes in without the clipboard then.
    }
  }

  ~ClipboardLoan() {
    if (!kept_) return;
    Try([this] { clipboard_.Clear(); });
    if (!kept_->empty()) Try([this] { clipboard_.SetText(*kept_); });
  }

  ClipboardLoan(const ClipboardLoan&) = delete;
  ClipboardLoan& operator=(const ClipboardLoan&) = delete;

  /// What lies on the clipboard now; `text` itself where that cannot be had.
  std::string ReadBack(std::string_view text) const {
    try {
      if (lent_) return clipboard_.GetText();
    } catch (const Error&) {  // Then without the clipboard.
    }
    return std::string(text);
  }

 private:
  // Another program may hold the clipboard: the text is in the pane, and there is nobody to tell.
  template <class Step>
  static void Try(Step step) {
    try {
      step();
    } catch (const std::exception&) {
    }
  }

  Clipboard& clipboard_;
  std::optional<std::string> kept_;
  bool lent_ = false;
};

}  // namespace

bool frmMain::EnsureDocument() {
  if (!HasDocument()) mnuFileNew_Click();
  return HasDocument();
}

void frmMain::InsertAround(std::string_view openText, std::string_view closeText) {
  if (!EnsureDocument()) return;
  const std::string selected = txtEdit.SelText();
  if (selected.empty()) {
    const std::size_t caret = txtEdit.SelStart();
    InsertText(std::string(openText).append(closeText));
    txtEdit.SetSelStart(caret + openText.size());
    return;
  }
  {
    const ClipboardLoan loan(application_.platform.clipboard, selected);
    txtEdit.SetSelText(std::string(openText).append(selected).append(closeText));
  }
  txtEdit.SetFocus();
}

void frmMain::InsertText(std::string_view text) {
  if (!EnsureDocument()) return;
  {
    const ClipboardLoan loan(application_.platform.clipboard, text);
    txtEdit.SetSelText(loan.ReadBack(text));
  }
  txtEdit.SetFocus();
}

}  // namespace tagsmith
