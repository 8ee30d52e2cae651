#include "services/desktop/system/QtDialogs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <memory>
#include <utility>

#include "services/Platform.h"
#include "services/desktop/system/FileFilters.h"
#include "services/desktop/system/InputDialog.h"
#include "services/desktop/system/ModalDialog.h"
#include "services/desktop/system/QtPrinter.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

constexpr int kButtonMask = 0x0F;
constexpr int kIconMask = 0xF0;

// A longer prompt would push the buttons off the screen.
constexpr qsizetype kMostLines = 25;
constexpr qsizetype kMostCharacters = 2500;

QString TitleOf(std::string_view title) {
  return title.empty() ? QString::fromLatin1(kApplicationTitle) : ToQString(title);
}

// --- Message box ---

QMessageBox::StandardButtons ButtonsOf(int flags) {
  switch (flags & kButtonMask) {
    case kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::Icon IconOf(int flags) {
  switch (flags & kIconMask) {
    case kQuestionIcon:
      return QMessageBox::Question;
    case kInformationIcon:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

/// A box that has to be answered when it offers Yes and No alone: closing it would be neither.
class QuestionBox final : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

  void SetFlags(int flags) {
    mayClose_ = (flags & kButtonMask) != kYesNo;
    setWindowFlag(Qt::WindowCloseButtonHint, mayClose_);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (mayClose_ || event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    mayClose_ ? QMessageBox::closeEvent(event) : event->ignore();
  }

 private:
  bool mayClose_ = true;
};

// The answer that closing the box stands for.
QMessageBox::StandardButton ClosingButton(int flags) {
  switch (flags & kButtonMask) {
    case kYesNoCancel:
      return QMessageBox::Cancel;
    case kYesNo:
      return QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

QMessageBox::StandardButton FirstButton(int flags) {
  return (flags & kButtonMask) == kOkOnly ? QMessageBox::Ok : QMessageBox::Yes;
}

int AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return kYes;
    case QMessageBox::No:
      return kNo;
    case QMessageBox::Cancel:
      return kCancel;
    default:
      return kOk;
  }
}

QString NormalLineBreaks(QString text) {
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n"))
      .replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

// The window is as wide as its title needs.
void MakeRoomForTitle(QMessageBox& box) {
  constexpr int kLettersOfButtons = 18;  // What the title bar's buttons take.
  auto* prompt = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (prompt == nullptr) return;
  const QFontMetrics metrics = box.fontMetrics();
  const int icon = box.iconPixmap().isNull() ? 0 : box.iconPixmap().width();
  const int width = metrics.horizontalAdvance(box.windowTitle()) +
                    kLettersOfButtons * metrics.averageCharWidth() - icon;
  // A longer text would be cut down to a width that is set here.
  if (prompt->sizeHint().width() < width) prompt->setMinimumWidth(width);
}

void SetPrompt(QMessageBox& box, std::string_view prompt) {
  const QString text = NormalLineBreaks(ToQString(prompt));
  const QStringList lines = text.split(QLatin1Char('\n'));
  box.setTextFormat(Qt::PlainText);
  if (lines.size() <= kMostLines && text.size() <= kMostCharacters) return box.setText(text);
  box.setText(lines.mid(0, kMostLines).join(QLatin1Char('\n')).left(kMostCharacters) +
              QStringLiteral("\n\u2026"));
  box.setDetailedText(text);
}

// --- Colours and fonts ---

QColor ToQColor(Colour colour) {
  return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

Colour FromQColor(const QColor& colour) {
  return colour.red() | (colour.green() << 8) | (colour.blue() << 16);
}

QFont ToQFont(const FontSpec& spec) {
  QFont font(ToQString(spec.name));
  if (spec.size > 0) font.setPointSizeF(spec.size);
  font.setBold(spec.bold);
  font.setItalic(spec.italic);
  font.setUnderline(spec.underline);
  font.setStrikeOut(spec.strikeThru);
  return font;
}

// The dialog finds its way only by a family that is installed and the name of one of its styles;
// without them it takes the first style in its list.
QFont AsInstalled(QFont font) {
  const QFontInfo info(font);
  if (!QFontDatabase::hasFamily(font.family())) font.setFamily(info.family());
  font.setStyleName(QFontDatabase::styleString(info));
  return font;
}

// The dialog deals in whole points: a broken size comes back rounded when it was left alone.
FontSpec FromQFont(const QFont& chosen, const FontSpec& start) {
  const bool sizeLeftAlone = chosen.pointSize() == ToQFont(start).pointSize();
  return {FromQString(chosen.family()),
          sizeLeftAlone ? start.size : chosen.pointSizeF(),
          chosen.bold(),
          chosen.italic(),
          chosen.underline(),
          chosen.strikeOut()};
}

// Another family that lacks the present style is shown in its first one, which may well be oblique:
// the style of that family that is nearest to the present weight and slant is chosen instead.
void KeepStyleAcrossFamilies(QFontDialog& dialog) {
  auto last = std::make_shared<QFont>(dialog.currentFont());
  QObject::connect(&dialog, &QFontDialog::currentFontChanged, &dialog,
                   [&dialog, last](const QFont& font) {
                     const bool newFamily = font.family() != last->family();
                     const bool newSlant = font.italic() != last->italic();
                     if (newFamily && newSlant) {
                       QFont wanted = font;
                       wanted.setStyleName({});
                       wanted.setWeight(last->weight());
                       wanted.setItalic(last->italic());
                       *last = AsInstalled(wanted);
                       dialog.setCurrentFont(*last);
                     } else {
                       *last = font;
                     }
                   });
}

// --- Files ---

// Some native dialogs have no title of their own.
QString FileTitleOf(const FileDialogRequest& request, bool saving) {
  if (!request.title.empty()) return ToQString(request.title);
  return saving ? QStringLiteral("Save As") : QStringLiteral("Open");
}

// The directory itself, or the nearest above it that is there.
QString NearestDirectory(QString directory) {
  while (!QDir(directory).exists()) {
    const QString above = QFileInfo(QDir::cleanPath(directory)).path();
    if (above == directory) break;
    directory = above;
  }
  return directory;
}

// A name chosen earlier is offered again only where it lies: in another directory it would name
// another file.
void SetStart(QFileDialog& dialog, const QString& directory, const QString& fileName) {
  const QFileInfo file(fileName);
  const bool isBare = file.fileName() == fileName;
  const QString start = directory.isEmpty() && !isBare ? file.path() : directory;
  if (!start.isEmpty()) dialog.setDirectory(NearestDirectory(start));
  const bool liesThere = QDir(start) == QDir(file.path()) && QDir(start).exists();
  if (!fileName.isEmpty() && (isBare || liesThere)) dialog.selectFile(file.fileName());
}

// --- Printing ---

// Qt shows page ranges also when no option asks for them, and leaves them to CUPS: a PDF file
// comes out whole, and of a reversed job other pages than those that were meant. All that stays is
// the choice between everything and the selection.
void PutRangesAway(QPrintDialog& dialog, bool offerSelection) {
  auto* ranges = dialog.findChild<QWidget*>(QStringLiteral("gbPrintRange"));
  if (ranges == nullptr) return;
  // The dialog shows them again for every printer, but nothing is seen inside what is hidden.
  auto* drawer = new QWidget(&dialog);
  drawer->hide();
  if (!offerSelection) return ranges->setParent(drawer);
  for (auto* control : ranges->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    const QString name = control->objectName();
    if (name != QLatin1String("printAll") && name != QLatin1String("printSelection")) {
      control->setParent(drawer);
    }
  }
}

}  // namespace

QtDialogs::QtDialogs(WindowOf windowOf, PathMap toHost, PathMap toSystem, QtPrinter& printer)
    : windowOf_(std::move(windowOf)),
      toHost_(std::move(toHost)),
      toSystem_(std::move(toSystem)),
      printer_(printer) {}

// A form whose window is not on the screen asks from above the active one.
QWidget* QtDialogs::ParentFor(Form& owner) const {
  QWidget* window = windowOf_(owner);
  return window != nullptr && window->isVisible() ? window : QApplication::activeWindow();
}

int QtDialogs::MsgBox(Form& owner, std::string_view prompt, int flags, std::string_view title) {
  ModalDialog box(new QuestionBox(ParentFor(owner)));
  box->setWindowTitle(TitleOf(title));
  box->setIcon(IconOf(flags));
  SetPrompt(*box, prompt);
  box->setStandardButtons(ButtonsOf(flags));
  box->setDefaultButton(FirstButton(flags));
  box->setEscapeButton(ClosingButton(flags));
  box->SetFlags(flags);
  MakeRoomForTitle(*box);
  const int button = box.Run();
  return AnswerOf(button == 0 ? ClosingButton(flags) : button);
}

std::string QtDialogs::InputBox(Form& owner, std::string_view prompt, std::string_view title,
                                std::string_view initial) {
  ModalDialog dialog(
      new InputDialog(ParentFor(owner), NormalLineBreaks(ToQString(prompt)), ToQString(initial)));
  dialog->setWindowTitle(TitleOf(title));
  return dialog.Run() == QDialog::Accepted ? FromQString(dialog->Text()) : std::string();
}

std::optional<std::string> QtDialogs::OpenFile(Form& owner, const FileDialogRequest& request) {
  return AskForFile(owner, request, false);
}

std::optional<std::string> QtDialogs::SaveFile(Form& owner, const FileDialogRequest& request) {
  return AskForFile(owner, request, true);
}

std::optional<std::string> QtDialogs::AskForFile(Form& owner, const FileDialogRequest& request,
                                                 bool saving) {
  ModalDialog dialog(new QFileDialog(ParentFor(owner)));
  dialog->setOption(QFileDialog::DontConfirmOverwrite);
  dialog->setOption(QFileDialog::HideNameFilterDetails);
  dialog->setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog->setFileMode(saving || request.mayBeNew ? QFileDialog::AnyFile
                                                 : QFileDialog::ExistingFile);
  dialog->setWindowTitle(FileTitleOf(request, saving));
  if (saving || request.mayBeNew) dialog->setDefaultSuffix(ToQString(request.defaultExtension));
  dialog->setNameFilters(NameFilters(request.filter));
  SetStart(*dialog, HostPath(request.initialDirectory), HostPath(request.fileName));
  if (dialog.Run() != QDialog::Accepted) return std::nullopt;
  // Empty for a place that the desktop shows but that no path leads to.
  const QString chosen = dialog->selectedFiles().value(0);
  if (chosen.isEmpty()) return std::nullopt;
  return toSystem_(FromQString(chosen));
}

QString QtDialogs::HostPath(std::string_view path) const {
  return path.empty() ? QString() : ToQString(toHost_(path));
}

std::optional<Colour> QtDialogs::PickColour(Form& owner, Colour start) {
  ModalDialog dialog(new QColorDialog(ToQColor(start), ParentFor(owner)));
  if (dialog.Run() != QDialog::Accepted) return std::nullopt;
  return FromQColor(dialog->selectedColor());
}

std::optional<FontSpec> QtDialogs::PickFont(Form& owner, const FontSpec& start) {
  ModalDialog dialog(new QFontDialog(AsInstalled(ToQFont(start)), ParentFor(owner)));
  // Native ones know neither underline nor strike-out.
  dialog->setOption(QFontDialog::DontUseNativeDialog);
  KeepStyleAcrossFamilies(*dialog);
  if (dialog.Run() != QDialog::Accepted) return std::nullopt;
  return FromQFont(dialog->selectedFont(), start);
}

bool QtDialogs::PickPrinter(Form& owner, bool offerSelection) {
  ModalDialog dialog(new QPrintDialog(&printer_.Device(), ParentFor(owner)));
  dialog->setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintCollateCopies |
                     QAbstractPrintDialog::PrintShowPageSize);
  dialog->setOption(QAbstractPrintDialog::PrintSelection, offerSelection);
  PutRangesAway(*dialog, offerSelection);
  return dialog.Run() == QDialog::Accepted;
}

}  // namespace tagsmith
