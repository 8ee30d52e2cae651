#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "services/Dialogs.h"

class QWidget;

namespace tagsmith {

class QtPrinter;

/// The desktop's dialogs: its native ones where it has them, else Qt's. While one is open the
/// hourglass is put aside; afterwards the window that was active is so again.
class QtDialogs final : public Dialogs {
 public:
  using WindowOf = std::function<QWidget*(Form&)>;
  using PathMap = std::function<std::string(std::string_view)>;

  /// `windowOf` gives a form's window, null if it has none; `toHost` and `toSystem` map paths;
  /// `printer` is what the print dialog sets up, and outlives this.
  QtDialogs(WindowOf windowOf, PathMap toHost, PathMap toSystem, QtPrinter& printer);

  int MsgBox(Form& owner, std::string_view prompt, int flags, std::string_view title) override;
  std::string InputBox(Form& owner, std::string_view prompt, std::string_view title,
                       std::string_view initial) override;
  std::optional<std::string> OpenFile(Form& owner, const FileDialogRequest& request) override;
  std::optional<std::string> SaveFile(Form& owner, const FileDialogRequest& request) override;
  std::optional<Colour> PickColour(Form& owner, Colour start) override;
  std::optional<FontSpec> PickFont(Form& owner, const FontSpec& start) override;
  bool PickPrinter(Form& owner, bool offerSelection) override;

 private:
  std::optional<std::string> AskForFile(Form& owner, const FileDialogRequest& request, bool saving);
  QWidget* ParentFor(Form& owner) const;
  QString HostPath(std::string_view path) const;

  WindowOf windowOf_;
  PathMap toHost_;
  PathMap toSystem_;
  QtPrinter& printer_;
};

}  // namespace tagsmith
