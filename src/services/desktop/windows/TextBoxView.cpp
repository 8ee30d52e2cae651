#include "services/desktop/windows/TextBoxView.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <limits>

#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/EditedText.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

constexpr Twips kFieldWidth = 2400;
constexpr Twips kLinesWidth = 4800;
constexpr int kLines = 5;
constexpr char16_t kFirstPrintable = u' ';

/// As large as it is made at least, not as large as Qt would like it.
class SmallTextEdit final : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;
  QSize sizeHint() const override { return minimumSize(); }
  QSize minimumSizeHint() const override { return minimumSize(); }

 protected:
  // Enter with Shift would put in a character that ends no line in a file.
  void keyPressEvent(QKeyEvent* event) override {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter) return QPlainTextEdit::keyPressEvent(event);
    QKeyEvent plain(event->type(), event->key(), event->modifiers() & ~Qt::ShiftModifier,
                    event->text());
    QPlainTextEdit::keyPressEvent(&plain);
    event->setAccepted(plain.isAccepted());
  }
};

// A line edit shows a line end, of whichever kind, as one character.
QString ShownInOneLine(std::string_view text) {
  return ShownText(text).replace(QChar::ParagraphSeparator, QChar::LineFeed);
}

// What a line edit holds, as a text edit would.
QString AsBlocks(QString shown) {
  return shown.replace(QChar::LineFeed, QChar::ParagraphSeparator);
}

// The characters that a key or an input method is about to type. Enter and Backspace count; what
// is held with Control or Alt does not, unless it makes a character of its own.
QString TypedBy(const QEvent& event) {
  if (event.type() == QEvent::InputMethod) {
    return static_cast<const QInputMethodEvent&>(event).commitString();
  }
  if (event.type() != QEvent::KeyPress) return {};
  const auto& key = static_cast<const QKeyEvent&>(event);
  const QString text = key.text();
  if (key.key() == Qt::Key_Escape || text.isEmpty()) return {};
  const bool isCommand = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
  return text[0] < kFirstPrintable && isCommand ? QString() : text;
}

}  // namespace

TextBoxView::TextBoxView(TextBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host) {
  control.MultiLine() ? MakeTextEdit(parent) : MakeLineEdit(parent);
  Resized();
}

void TextBoxView::MakeLineEdit(QWidget& parent) {
  line_ = new QLineEdit(&parent);
  line_->setMaxLength(std::numeric_limits<int>::max());
  Update(Property::kText);
  if (!model_.SelectsWritten()) line_->setCursorPosition(0);
  Adopt(line_);
  connect(line_, &QLineEdit::textEdited, this, [this] { TakeEdit(); });
}

void TextBoxView::MakeTextEdit(QWidget& parent) {
  lines_ = new SmallTextEdit(&parent);
  lines_->setTabChangesFocus(true);
  if (!model_.WrapsLines()) lines_->setLineWrapMode(QPlainTextEdit::NoWrap);
  Update(Property::kText);
  Adopt(lines_);
  connect(lines_, &QPlainTextEdit::textChanged, this, [this] { TakeEdit(); });
}

void TextBoxView::Resized() {
  const TwipsScale& scale = Host().Scale();
  const bool hasWidth = model_.Width() > 0;
  const Twips width = hasWidth ? model_.Width() : lines_ != nullptr ? kLinesWidth : kFieldWidth;
  Widget()->setMinimumWidth(scale.ToPixels(width));
  if (lines_ == nullptr) return;
  const int room = kLines * lines_->fontMetrics().lineSpacing() + 2 * lines_->frameWidth() +
                   static_cast<int>(2 * lines_->document()->documentMargin());
  lines_->setMinimumHeight(model_.Height() > 0 ? scale.ToPixels(model_.Height()) : room);
}

void TextBoxView::Update(Property property) {
  if (property != Property::kText) return;
  showing_ = true;
  if (line_ != nullptr) {
    const QString text = ShownInOneLine(model_.Text());
    if (line_->text() != text) line_->setText(text);
    if (model_.SelectsWritten()) line_->selectAll();
  } else {
    const QString text = ShownText(model_.Text());
    if (lines_->document()->toRawText() != text) lines_->setPlainText(text);
  }
  showing_ = false;
}

void TextBoxView::TakeEdit() {
  if (showing_) return;
  Host().Act([this] {
    const QString shown =
        line_ != nullptr ? AsBlocks(line_->text()) : lines_->document()->toRawText();
    model_.UserEdit(MergeEdit(model_.Text(), shown));
  });
}

bool TextBoxView::MayType(const QString& text) {
  bool allowed = true;
  Host().Act([this, &text, &allowed] {
    for (const char32_t character : text.toStdU32String()) {
      if (!model_.UserKeyPress(static_cast<int>(character))) allowed = false;
    }
  });
  return allowed;
}

bool TextBoxView::eventFilter(QObject* watched, QEvent* event) {
  const QString typed = TypedBy(*event);
  if (typed.isEmpty()) return WidgetView::eventFilter(watched, event);
  // The handler may have unloaded the form: then the key has done its work, and the view is gone.
  const QPointer<QWidget> window = Widget()->window();
  return !MayType(typed) || !window || !window->isVisible();
}

}  // namespace tagsmith
