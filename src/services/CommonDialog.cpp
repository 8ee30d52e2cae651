#include "services/CommonDialog.h"

#include <optional>
#include <utility>

#include "services/Dialogs.h"
#include "services/Error.h"
#include "services/Form.h"
#include "services/Platform.h"

namespace tagsmith {
namespace {

Dialogs& DialogsOf(const Form& form) { return form.GetPlatform().dialogs; }

FileDialogRequest RequestOf(const CommonDialog& dialog) {
  return {dialog.dialogTitle, dialog.filter,     dialog.initDir,
          dialog.fileName,    dialog.defaultExt, dialog.mayBeNew};
}

}  // namespace

bool CommonDialog::Cancelled() const {
  if (cancelError) throw Error(ErrorCode::kCancelled, "Cancel was selected.");
  return false;
}

bool CommonDialog::ShowOpen() {
  std::optional<std::string> chosen = DialogsOf(owner_).OpenFile(owner_, RequestOf(*this));
  if (!chosen) return Cancelled();
  fileName = *std::move(chosen);
  return true;
}

bool CommonDialog::ShowSave() {
  std::optional<std::string> chosen = DialogsOf(owner_).SaveFile(owner_, RequestOf(*this));
  if (!chosen) return Cancelled();
  fileName = *std::move(chosen);
  return true;
}

bool CommonDialog::ShowColor() {
  const Colour start = (flags & kStartFromColor) != 0 ? color : kBlack;
  const std::optional<Colour> chosen = DialogsOf(owner_).PickColour(owner_, start);
  if (!chosen) return Cancelled();
  color = *chosen;
  return true;
}

bool CommonDialog::ShowFont() {
  const std::optional<FontSpec> chosen = DialogsOf(owner_).PickFont(owner_, font);
  if (!chosen) return Cancelled();
  font = *chosen;
  return true;
}

bool CommonDialog::ShowPrinter() {
  const bool offerSelection = (flags & kOfferSelection) != 0;
  return DialogsOf(owner_).PickPrinter(owner_, offerSelection) || Cancelled();
}

}  // namespace tagsmith
