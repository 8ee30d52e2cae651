#pragma once

#include <string>

#include "services/TextBox.h"
#include "services/desktop/windows/WidgetView.h"

class QLineEdit;
class QPlainTextEdit;

namespace tagsmith {

/// A line edit, or a plain text edit for a field of several lines. What the user does not edit of
/// a text goes back into the model as it came.
class TextBoxView final : public ViewOf<TextBox> {
 public:
  TextBoxView(TextBox& control, ViewHost& host, QWidget& parent);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeLineEdit(QWidget& parent);
  void MakeTextEdit(QWidget& parent);
  void Update(Property property) override;
  void Resized() override;
  void TakeEdit();
  /// Whether the handler lets the characters that are about to be typed pass.
  bool MayType(const QString& text);

  QLineEdit* line_ = nullptr;
  QPlainTextEdit* lines_ = nullptr;
  bool showing_ = false;
};

}  // namespace tagsmith
