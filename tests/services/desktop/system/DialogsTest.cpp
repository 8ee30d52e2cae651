#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFontInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <tuple>
#include <utility>

#include "services/Form.h"
#include "services/desktop/system/FileFilters.h"
#include "services/desktop/system/QtDialogs.h"
#include "services/desktop/system/QtKeyboard.h"
#include "services/desktop/system/QtPrinter.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

using Act = std::function<void(QDialog&)>;

// Acts once on the next dialog that has the keyboard.
class WhenAsked final : public QObject {
 public:
  explicit WhenAsked(Act act) : act_(std::move(act)), timer_(startTimer(5)) {}

 private:
  void timerEvent(QTimerEvent* /*event*/) override {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isActiveWindow()) return;
    killTimer(timer_);
    act_(*dialog);
  }

  Act act_;
  int timer_;
};

Act Press(const char* keys) {
  return [keys](QDialog&) { QtKeyboard().SendKeys(keys); };
}

void Close(QDialog& dialog) { dialog.close(); }

std::string System(std::string_view host) { return "c:" + std::string(host); }
std::string Host(std::string_view system) { return std::string(system.substr(2)); }

class DesktopDialogs : public testing::Test {
 protected:
  DesktopDialogs() {
    edit_->setFocus();
    window_->show();
    window_->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit_->hasFocus(); }));
  }

  int MsgBox(const Act& act, int flags, std::string_view prompt = "Save?") {
    const WhenAsked asked(act);
    return dialogs_.MsgBox(form_, prompt, flags, "Sorry...");
  }

  std::string InputBox(const Act& act) {
    const WhenAsked asked(act);
    return dialogs_.InputBox(form_, "Enter Line Number", "Jump To Line", "12\xC2\xA0");
  }

  // The dialogs only hand the form on to `windowOf`, which does not look into it.
  alignas(Form) std::array<std::byte, sizeof(Form)> formStorage_{};
  Form& form_ = reinterpret_cast<Form&>(formStorage_);
  std::unique_ptr<QWidget> window_ = std::make_unique<QWidget>();
  QLineEdit* edit_ = new QLineEdit(window_.get());
  QtPrinter printer_;
  QtDialogs dialogs_{[this](Form&) { return window_.get(); }, Host, System, printer_};
};

TEST_F(DesktopDialogs, MessageBoxGivesTheAnswerAndReturnsTheFocus) {
  const std::tuple<int, Act, int> cases[] = {{0, Press("{ENTER}"), kOk},
                                             {64, Close, kOk},
                                             {35, Press("{TAB} "), kNo},
                                             {35, Close, kCancel},
                                             // Neither of these two is an answer.
                                             {36,
                                              [](QDialog& box) {
                                                Close(box);
                                                Press("{ESC}{ENTER}")(box);
                                              },
                                              kYes}};
  for (const auto& [flags, act, answer] : cases) {
    EXPECT_EQ(MsgBox(act, flags), answer) << flags;
    EXPECT_TRUE(QTest::qWaitFor([this] { return edit_->hasFocus(); }));
  }
  EXPECT_EQ(MsgBox([this](QDialog&) { window_.reset(); }, 35), kCancel);
}

TEST_F(DesktopDialogs, MessageBoxShowsPlainTextOnTheScreenWithANormalPointer) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  const auto look = [](QDialog& dialog) {
    auto& box = dynamic_cast<QMessageBox&>(dialog);
    EXPECT_EQ(box.text(), "<B>a & b</B>\nsecond\nthird");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    box.close();
  };
  MsgBox(look, 64, "<B>a & b</B>\r\nsecond\rthird");
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  QApplication::restoreOverrideCursor();

  std::string prompt;
  for (int i = 0; i < 2000; ++i) prompt += "A name that is taken.html\r\n";
  const auto measure = [](QDialog& dialog) {
    EXPECT_LT(dialog.height(), 700);
    EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).detailedText().count('\n'), 2000);
    dialog.close();
  };
  MsgBox(measure, 0, prompt);
}

TEST_F(DesktopDialogs, InputBoxGivesTheTypedTextOrNothing) {
  EXPECT_EQ(InputBox(Press("{ENTER}")), "12\xC2\xA0");
  EXPECT_EQ(InputBox(Press("7{ENTER}")), "7");  // What was there is selected.
  EXPECT_EQ(InputBox(Press("7{ESC}")), "");
}

TEST_F(DesktopDialogs, ColourHasRedInTheLowestByte) {
  const WhenAsked asked([](QDialog& dialog) {
    auto& picker = dynamic_cast<QColorDialog&>(dialog);
    EXPECT_EQ(picker.currentColor(), QColor(0x33, 0x22, 0x11));
    picker.setCurrentColor(QColor(1, 2, 3));
    picker.accept();
  });
  EXPECT_EQ(dialogs_.PickColour(form_, 0x112233), 0x030201);
}

TEST_F(DesktopDialogs, FontKeepsWhatWasLeftAlone) {
  const std::string family = FromQString(QFontInfo(QApplication::font()).family());
  const FontSpec start{family, 10.5, true, false, true, true};
  const WhenAsked asked(Press("{ENTER}"));
  EXPECT_EQ(dialogs_.PickFont(form_, start), start);
}

TEST(FileFilters, MatchInAnyCaseAndPutUpWithUnevenText) {
  const QStringList filters = NameFilters("HTML Files|*.html;*.htm|PHP 3|*.php3");
  ASSERT_EQ(filters.size(), 2);
  const QString patterns = filters[0].section('(', 1).chopped(1);
  // With case, as a native dialog matches.
  const auto matches = [&](const QString& name) {
    for (const QString& pattern : patterns.split(' ')) {
      const auto wild = QRegularExpression::wildcardToRegularExpression(pattern);
      if (QRegularExpression(wild).match(name).hasMatch()) return true;
    }
    return false;
  };
  for (const char* name : {"a.html", "a.HTML", "a.Htm", "A.B.hTm"}) EXPECT_TRUE(matches(name));
  for (const char* name : {"a.htmx", "a.xhtml", "html", "a.htm.txt"}) EXPECT_FALSE(matches(name));
  EXPECT_EQ(NameFilters("All Files|*.*|Exe Files|*.exe|Both|*.txt; *.*"),
            (QStringList{"All Files (*)", "Exe Files (*)", "Both (*)"}));
  EXPECT_EQ(NameFilters("Lonely caption"), QStringList{"Lonely caption (*)"});
  EXPECT_TRUE(NameFilters("").isEmpty());
}

class FileDialogs : public DesktopDialogs {
 protected:
  FileDialogs() {
    for (const char* name : {"a.html", "B.HTM"}) {
      QFile file(directory_.filePath(name));
      EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }
    request_.filter = "HTML Files|*.html;*.htm|All Files|*.*";
    request_.initialDirectory = PathOf("");
  }

  std::string PathOf(const QString& name) const {
    return System(directory_.filePath(name).toStdString());
  }

  std::optional<std::string> Ask(bool saving, const Act& act) {
    const WhenAsked asked(act);
    return saving ? dialogs_.SaveFile(form_, request_) : dialogs_.OpenFile(form_, request_);
  }

  // Types `name`, presses the button that accepts and, if that was not allowed, closes.
  static Act Choose(const QString& name) {
    return [name](QDialog& dialog) {
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
      dialog.findChild<QDialogButtonBox*>()->buttons().first()->click();
      if (dialog.isVisible()) dialog.close();
    };
  }

  QTemporaryDir directory_;
  FileDialogRequest request_;
};

TEST_F(FileDialogs, OpenGivesAFileThatIsThere) {
  EXPECT_EQ(Ask(false, Choose("B.HTM")), PathOf("B.HTM"));
  EXPECT_EQ(Ask(false, Choose("missing.html")), std::nullopt);
}

TEST_F(FileDialogs, SaveTakesTheNameAsTypedAndNeverAsks) {
  for (const char* name : {"a.html", "new", "new.page"}) {
    EXPECT_EQ(Ask(true, Choose(name)), PathOf(name));
  }
  request_.defaultExtension = "html";
  EXPECT_EQ(Ask(true, Choose("new")), PathOf("new.html"));
}

bool Shows(const QDialog& dialog, const char* name) {
  const auto* control = dialog.findChild<QWidget*>(name);
  return control != nullptr && control->isVisible();
}

TEST_F(DesktopDialogs, PrintDialogOffersWhatIsPrintedAndSetsUpThePrinter) {
  const QTemporaryDir folder;
  printer_.Device().setOutputFileName(folder.filePath("out.pdf"));
  for (const bool selection : {true, false}) {
    const WhenAsked asked([&](QDialog& box) {
      auto& dialog = dynamic_cast<QPrintDialog&>(box);
      for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().contains("Options")) button->click();
      }
      EXPECT_TRUE(Shows(dialog, "copies"));
      EXPECT_EQ(Shows(dialog, "printSelection"), selection);
      for (const char* range : {"printRange", "pagesRadioButton", "pageSetCombo"}) {
        EXPECT_FALSE(Shows(dialog, range)) << range;
      }
      selection ? dialog.reject() : dialog.accept();
    });
    EXPECT_EQ(dialogs_.PickPrinter(form_, selection), !selection);
  }
}

}  // namespace
}  // namespace tagsmith
