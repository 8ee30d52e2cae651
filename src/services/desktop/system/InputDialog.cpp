#include "services/desktop/system/InputDialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <limits>

namespace tagsmith {
namespace {

constexpr int kColumns = 50;

}  // namespace

InputDialog::InputDialog(QWidget* parent, const QString& prompt, const QString& initial)
    : QDialog(parent), edit_(new QLineEdit(this)) {
  auto* label = new QLabel(this);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setText(prompt);

  edit_->setMaxLength(std::numeric_limits<int>::max());
  edit_->setText(initial);
  edit_->selectAll();
  edit_->setAccessibleName(prompt);
  edit_->setMinimumWidth(kColumns * fontMetrics().averageCharWidth());

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(edit_);
  layout->addWidget(buttons);
}

QString InputDialog::Text() const { return edit_->text(); }

}  // namespace tagsmith
