#pragma once

#include <QDialog>
#include <QString>

class QLineEdit;

namespace tagsmith {

/// A question answered with one line of text. `prompt` is plain text with line breaks; `initial`
/// is there to be typed over.
class InputDialog final : public QDialog {
 public:
  InputDialog(QWidget* parent, const QString& prompt, const QString& initial);

  QString Text() const;

 private:
  QLineEdit* edit_;
};

}  // namespace tagsmith
