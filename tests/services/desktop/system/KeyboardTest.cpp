#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <vector>

#include "services/Error.h"
#include "services/desktop/system/KeyNotation.h"
#include "services/desktop/system/QtKeyboard.h"

namespace tagsmith {
namespace {

TEST(KeyNotation, TypesCharactersAsThemselves) {
  EXPECT_EQ(ParseKeys("{+}{}}"), (std::vector<KeyStroke>{{Qt::Key_Plus, Qt::NoModifier, "+"},
                                                         {'}', Qt::NoModifier, "}"}}));
  EXPECT_EQ(ParseKeys("\xF0\x9F\x98\x80").at(0).text.toStdString(), "\xF0\x9F\x98\x80");
  for (const char* bad : {"^", "(a", "a)", "{", "{}", "{ENTER", "{NOKEY}", "}"}) {
    EXPECT_THROW(ParseKeys(bad), Error) << bad;
  }
}

class TypedKeys : public testing::Test {
 protected:
  TypedKeys() {
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window_.isActiveWindow(); }));
  }

  template <class Read>
  void ExpectClipboardKeysWorkIn(QWidget& widget, Read read) {
    widget.setFocus();
    keyboard_.SendKeys("word^(a)^(x)");
    EXPECT_EQ(QApplication::clipboard()->text(), "word");
    EXPECT_EQ(read(), "");
    keyboard_.SendKeys("^(v)^(v){HOME}+({RIGHT}{RIGHT})^(c){END}^(v)");
    EXPECT_EQ(read(), "wordwordwo");
    keyboard_.SendKeys("^(z){BS}{HOME}{DEL}");
    EXPECT_EQ(read(), "ordwor");
  }

  QWidget window_;
  QLineEdit line_{&window_};
  QPlainTextEdit pane_{&window_};
  QtKeyboard keyboard_;
};

TEST_F(TypedKeys, ReachWhateverHasTheFocus) {
  ExpectClipboardKeysWorkIn(line_, [this] { return line_.text(); });
  ExpectClipboardKeysWorkIn(pane_, [this] { return pane_.toPlainText(); });
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
  EXPECT_EQ(line_.text() + pane_.toPlainText(), "a");
}

}  // namespace
}  // namespace tagsmith
