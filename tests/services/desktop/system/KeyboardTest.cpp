#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <initializer_list>
#include <vector>

#include "services/Error.h"
#include "services/desktop/system/KeyNotation.h"
#include "services/desktop/system/QtKeyboard.h"
#include "services/desktop/system/Wait.h"

namespace tagsmith {
namespace {

TEST(KeyNotation, HoldsKeysForOneCharacterOrAGroup) {
  const std::vector<KeyStroke> clipboard = {{Qt::Key_Z, Qt::ControlModifier, ""}};
  EXPECT_EQ(ParseKeys("^(z)"), clipboard);
  EXPECT_EQ(ParseKeys("^z"), clipboard);
  EXPECT_EQ(ParseKeys("^Z"), clipboard);

  EXPECT_EQ(ParseKeys("^(a+b)c"),
            (std::vector<KeyStroke>{{Qt::Key_A, Qt::ControlModifier, ""},
                                    {Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier, ""},
                                    {Qt::Key_C, Qt::NoModifier, "c"}}));
  EXPECT_EQ(ParseKeys("^%{F12}{left}"),
            (std::vector<KeyStroke>{{Qt::Key_F12, Qt::ControlModifier | Qt::AltModifier, ""},
                                    {Qt::Key_Left, Qt::NoModifier, ""}}));
}

TEST(KeyNotation, TypesCharactersAsThemselves) {
  EXPECT_EQ(ParseKeys("A"), (std::vector<KeyStroke>{{Qt::Key_A, Qt::ShiftModifier, "A"}}));
  EXPECT_EQ(ParseKeys("+a"), ParseKeys("A"));
  EXPECT_EQ(ParseKeys("{+}{}}{{}"), (std::vector<KeyStroke>{{Qt::Key_Plus, Qt::NoModifier, "+"},
                                                            {'}', Qt::NoModifier, "}"},
                                                            {'{', Qt::NoModifier, "{"}}));
  EXPECT_EQ(ParseKeys("\xF0\x9F\x98\x80").at(0).text.toStdString(), "\xF0\x9F\x98\x80");
  for (const char* bad : {"^", "(a", "a)", "{", "{}", "{ENTER", "{NOKEY}", "{F13}", "}"}) {
    EXPECT_THROW(ParseKeys(bad), Error) << bad;
  }
}

class TypedKeys : public testing::Test {
 protected:
  TypedKeys() {
    for (QWidget* child : std::initializer_list<QWidget*>{&line_, &combo_, &pane_}) {
      child->setParent(&window_);
    }
    combo_.setEditable(true);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(WaitUntil([this] { return window_.isActiveWindow(); }));
  }

  template <class Read>
  void ExpectClipboardKeysWorkIn(QWidget& widget, Read read) {
    widget.setFocus();
    keyboard_.SendKeys("word^(a)^(x)");
    EXPECT_EQ(QApplication::clipboard()->text(), "word");
    EXPECT_EQ(read(), "");
    keyboard_.SendKeys("^(v)^(v){HOME}+({RIGHT}{RIGHT})^(c){END}^(v)");
    EXPECT_EQ(read(), "wordwordwo");
    keyboard_.SendKeys("^(z)");
    EXPECT_EQ(read(), "wordword");
    keyboard_.SendKeys("{BS}{HOME}{DEL}");
    EXPECT_EQ(read(), "ordwor");
  }

  QWidget window_;
  QLineEdit line_;
  QComboBox combo_;
  QPlainTextEdit pane_;
  QtKeyboard keyboard_;
};

TEST_F(TypedKeys, ReachWhateverHasTheFocus) {
  ExpectClipboardKeysWorkIn(line_, [this] { return line_.text(); });
  ExpectClipboardKeysWorkIn(combo_, [this] { return combo_.currentText(); });
  ExpectClipboardKeysWorkIn(pane_, [this] { return pane_.toPlainText(); });
  line_.setFocus();
  keyboard_.SendKeys("{TAB}x");
  EXPECT_EQ(combo_.currentText(), "x");
}

TEST_F(TypedKeys, ReachTheWidgetThoughAMenuOwnsThem) {
  QAction undo;
  undo.setShortcut(QKeySequence("Ctrl+Z"));
  window_.addAction(&undo);
  pane_.setFocus();
  keyboard_.SendKeys("gone^(z)");
  EXPECT_EQ(pane_.toPlainText(), "");
}

TEST_F(TypedKeys, GoNowhereOnceTheFocusIsGone) {
  line_.setFocus();
  QObject::connect(&line_, &QLineEdit::textEdited, &line_, &QWidget::clearFocus);
  keyboard_.SendKeys("abc");
  EXPECT_EQ(line_.text() + pane_.toPlainText() + combo_.currentText(), "a");
}

}  // namespace
}  // namespace tagsmith
