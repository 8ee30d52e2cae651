#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFontDialog>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <tuple>
#include <utility>

#include "services/Form.h"
#include "services/desktop/system/QtDialogs.h"
#include "services/desktop/system/QtKeyboard.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/system/Wait.h"

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

std::string System(std::string_view host) {
  std::string path = "c:" + std::string(host);
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

std::string Host(std::string_view system) {
  std::string path(system.substr(system.starts_with("c:") ? 2 : 0));
  std::replace(path.begin(), path.end(), '\\', '/');
  return path;
}

class DesktopDialogs : public testing::Test {
 protected:
  DesktopDialogs() {
    edit_->setFocus();
    window_->show();
    window_->activateWindow();
    EXPECT_TRUE(WaitUntil([this] { return edit_->hasFocus(); }));
  }

  int MsgBox(const Act& act, int flags, std::string_view prompt = "Save?") {
    const WhenAsked asked(act);
    return dialogs_.MsgBox(form_, prompt, flags, "Sorry...");
  }

  std::string InputBox(const Act& act) {
    const WhenAsked asked(act);
    return dialogs_.InputBox(form_, "Enter <I>Line</I> Number", "Jump To Line", "12\xC2\xA0");
  }

  std::optional<FontSpec> PickFont(const Act& act, const FontSpec& start) {
    const WhenAsked asked(act);
    return dialogs_.PickFont(form_, start);
  }

  // The dialogs only hand the form on to `windowOf`, which does not look into it.
  alignas(Form) std::array<std::byte, sizeof(Form)> formStorage_{};
  Form& form_ = reinterpret_cast<Form&>(formStorage_);
  std::unique_ptr<QWidget> window_ = std::make_unique<QWidget>();
  QLineEdit* edit_ = new QLineEdit(window_.get());
  QtDialogs dialogs_{[this](Form&) { return window_.get(); }, Host, System};
};

TEST_F(DesktopDialogs, MessageBoxGivesTheAnswerAndReturnsTheFocus) {
  const std::tuple<int, Act, int> cases[] = {
      {0, Press("{ENTER}"), kOk}, {64, Press("{ESC}"), kOk},     {64, Close, kOk},
      {35, Press("{TAB} "), kNo}, {35, Press("{ESC}"), kCancel}, {35, Close, kCancel},
      {36, Press("{ESC}"), kNo},  {36, Press("{ENTER}"), kYes},  {36, Close, kNo}};
  for (const auto& [flags, act, answer] : cases) {
    EXPECT_EQ(MsgBox(act, flags), answer) << flags;
    EXPECT_TRUE(WaitUntil([this] { return edit_->hasFocus(); }));
  }
  EXPECT_EQ(MsgBox([this](QDialog&) { window_.reset(); }, 35), kCancel);
}

TEST_F(DesktopDialogs, MessageBoxShowsPlainTextAboveItsFormWithANormalPointer) {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  window_->setWindowFlag(Qt::WindowStaysOnTopHint);
  window_->show();
  const auto look = [this](QDialog& dialog) {
    auto& box = dynamic_cast<QMessageBox&>(dialog);
    EXPECT_EQ(box.text(), "<B>a & b</B>\nsecond\nthird");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Sorry...");
    EXPECT_EQ(box.icon(), QMessageBox::Information);
    EXPECT_EQ(box.parentWidget(), window_.get());
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
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
  InputBox([](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    EXPECT_GT(dialog.findChild<QLineEdit*>()->width(), 250);
    dialog.close();
  });
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
  for (const bool bold : {false, true}) {
    for (const bool italic : {false, true}) {
      const FontSpec start{family, 10.5, bold, italic, true, true};
      EXPECT_EQ(PickFont(Press("{ENTER}"), start), start) << bold << italic;
    }
  }
  const auto enlarge = [](QDialog& dialog) {
    auto& picker = dynamic_cast<QFontDialog&>(dialog);
    QFont font = picker.currentFont();
    font.setPointSize(20);
    picker.setCurrentFont(font);
    picker.accept();
  };
  EXPECT_EQ(PickFont(enlarge, {"No such family", 10.5, true, false, false, false}),
            (FontSpec{family, 20, true, false, false, false}));
  EXPECT_EQ(PickFont(Press("{ESC}"), {}), std::nullopt);
}

class FileDialogs : public DesktopDialogs {
 protected:
  FileDialogs() {
    for (const char* name : {"a.html", "B.HTM", "note.txt", ".hidden.html"}) {
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

  // The file names that the dialog shows, once it has read the directory.
  static QStringList Shown(const QDialog& dialog) {
    const auto* view = dialog.findChild<QListView*>("listView");
    const auto rows = [view] { return view->model()->rowCount(view->rootIndex()); };
    WaitUntil([&rows] { return rows() > 0; });
    QStringList names;
    for (int row = 0; row < rows(); ++row) {
      names += view->model()->index(row, 0, view->rootIndex()).data().toString();
    }
    return names;
  }

  QTemporaryDir directory_;
  FileDialogRequest request_;
};

TEST_F(FileDialogs, OpenGivesAFileThatIsThereAndShowsTheFirstFiltersOnes) {
  const auto look = [](QDialog& dialog) {
    const auto* filters = dialog.findChild<QComboBox*>("fileTypeCombo");
    EXPECT_EQ(filters->currentText(), "HTML Files");
    EXPECT_EQ(filters->itemText(1), "All Files");
    EXPECT_EQ(Shown(dialog), (QStringList{"a.html", "B.HTM"}));
    dialog.close();
  };
  EXPECT_EQ(Ask(false, look), std::nullopt);
  EXPECT_EQ(Ask(false, Choose("B.HTM")), PathOf("B.HTM"));
  EXPECT_EQ(Ask(false, Choose("missing.html")), std::nullopt);
}

TEST_F(FileDialogs, SaveTakesTheNameAsTypedAndNeverAsks) {
  for (const char* name : {"a.html", "new", "new.page"}) {
    EXPECT_EQ(Ask(true, Choose(name)), PathOf(name));
  }
  request_.defaultExtension = "html";
  EXPECT_EQ(Ask(true, Choose("new")), PathOf("new.html"));
  EXPECT_EQ(Ask(true, Choose("new.page")), PathOf("new.page"));
}

TEST_F(FileDialogs, OfferAnEarlierNameOnlyInItsOwnDirectory) {
  const std::pair<std::string, QString> cases[] = {
      {PathOf("a.html"), "a.html"}, {"bare.html", "bare.html"}, {"c:\\elsewhere\\a.html", ""}};
  for (const auto& one : cases) {
    request_.fileName = one.first;
    Ask(true, [&one](QDialog& dialog) {
      EXPECT_EQ(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), one.second);
      dialog.close();
    });
  }
}

}  // namespace
}  // namespace tagsmith
