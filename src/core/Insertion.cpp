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
      std::string kept = clipboard_.GetText();
      clipboard_.SetText(text);
      kept_ = std::move(kept);
    } catch (const Error&) {  // Nothing is lent then.
    }
  }

  ~ClipboardLoan() {
    if (!kept_) return;
    try {
      clipboard_.Clear();
      if (!kept_->empty()) clipboard_.SetText(*kept_);
    } catch (const std::exception&) {  // Nobody to tell: the text is in the pane.
    }
  }

  ClipboardLoan(const ClipboardLoan&) = delete;
  ClipboardLoan& operator=(const ClipboardLoan&) = delete;

  /// What lies on the clipboard now; `text` itself where that cannot be had.
  std::string ReadBack(std::string_view text) const {
    try {
      if (kept_) return clipboard_.GetText();
    } catch (const Error&) {  // Then without the clipboard.
    }
    return std::string(text);
  }

 private:
  Clipboard& clipboard_;
  std::optional<std::string> kept_;
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
