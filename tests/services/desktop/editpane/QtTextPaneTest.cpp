#include "services/desktop/editpane/QtTextPane.h"

#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <memory>
#include <optional>

#include "services/desktop/editpane/PaneColours.h"
#include "services/desktop/editpane/PaneLook.h"

namespace tagsmith {
namespace {

using Sci = QsciScintilla;

class Listener : public TextPaneListener {
 public:
  explicit Listener(TextPane& pane) : pane_(pane) {}

  void UserChanged() override {
    ++changes;
    // The event is done: the pane takes edits again.
    if (!answer.empty()) pane_.ReplaceSelection(std::exchange(answer, {}));
  }
  bool UserKeyPress(int keyAscii) override {
    keys.push_back(keyAscii);
    if (keyAscii != taken) return true;
    pane_.ReplaceSelection("     ");
    return false;
  }

  int changes = 0;
  std::vector<int> keys;
  int taken = 0;
  std::string answer;

 private:
  TextPane& pane_;
};

class QtTextPaneTest : public testing::Test {
 protected:
  QtTextPaneTest() {
    pane_.SetListener(&listener_);
    pane_.Widget()->resize(600, 400);
    pane_.Widget()->show();
  }

  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(pane_.Widget(), static_cast<Qt::Key>(key), modifiers);
  }
  Sci& View() { return *qobject_cast<Sci*>(pane_.Widget()); }
  QWidget* Viewport() { return View().viewport(); }
  QPoint PlaceOf(unsigned long position) {
    const auto at = static_cast<long>(position);
    return {static_cast<int>(View().SendScintilla(Sci::SCI_POINTXFROMPOSITION, 0UL, at)),
            static_cast<int>(View().SendScintilla(Sci::SCI_POINTYFROMPOSITION, 0UL, at)) + 3};
  }
  void Drop(QMimeData& data, QPoint place) {
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Viewport(), &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(Viewport(), &event);
    EXPECT_TRUE(event.isAccepted());
  }
  // The text, with the pieces that are marked as a pair of tags in brackets.
  std::string Marked() {
    Viewport()->grab();  // marks are set when the pane is about to paint
    std::string text;
    bool inMark = false;
    for (std::size_t at = 0; at <= pane_.Length(); ++at) {
      const bool marked = View().SendScintilla(Sci::SCI_INDICATORVALUEAT, kMatchIndicator,
                                               static_cast<long>(at)) != 0;
      if (marked != std::exchange(inMark, marked)) text += marked ? '[' : ']';
      text += pane_.TextRange(at, 1);
    }
    return text;
  }
  // What one user event has left, told exactly once.
  void ExpectChangedOnce(const std::string& text) {
    EXPECT_EQ(pane_.Text(), text);
    EXPECT_EQ(std::exchange(listener_.changes, 0), 1);
  }

  QtTextPane pane_;
  Listener listener_{pane_};
};

TEST_F(QtTextPaneTest, TellsOnceOfEachUserEventAndNeverOfTheSystems) {
  pane_.SetText("word two");
  pane_.Select(0, 4);
  EXPECT_EQ(listener_.changes, 0);

  listener_.answer = "!";
  Key(Qt::Key_A);  // replaces the selection: Scintilla sees two modifications
  ExpectChangedOnce("a! two");
  Key(Qt::Key_Delete);
  ExpectChangedOnce("a!two");
  Key(Qt::Key_Z, Qt::ControlModifier);
  ExpectChangedOnce("a! two");
  Key(Qt::Key_Y, Qt::ControlModifier);
  ExpectChangedOnce("a!two");
  Key(Qt::Key_Y, Qt::ControlModifier);
  Key(Qt::Key_Right);
  Key(Qt::Key_Escape);
  pane_.Undo();
  EXPECT_EQ(listener_.changes, 0);
  EXPECT_EQ(pane_.Text(), "a! two");
}

TEST_F(QtTextPaneTest, AsksAboutEachCharacterKey) {
  pane_.SetText("ab");
  pane_.Select(0, 1);
  listener_.taken = '\t';
  Key(Qt::Key_Tab);
  EXPECT_EQ(pane_.Text(), "     b");
  EXPECT_EQ(listener_.changes, 0);

  QTest::sendKeyEvent(QTest::Click, pane_.Widget(), Qt::Key_unknown, QString::fromUtf8("\u20ac"),
                      Qt::NoModifier);
  QTest::sendKeyEvent(QTest::Click, pane_.Widget(), Qt::Key_unknown,
                      QString::fromUtf8("\U0001F600"), Qt::NoModifier);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Return);
  Key(Qt::Key_Left);
  EXPECT_EQ(pane_.Text(), "     \u20ac\r\nb");
  EXPECT_EQ(listener_.keys, (std::vector<int>{'\t', 0x20AC, 0x1F600, '\b', '\r'}));
}

TEST_F(QtTextPaneTest, LeavesTheMenusTheirKeys) {
  pane_.SetText("one\r\ntwo");
  for (const int key : {Qt::Key_N, Qt::Key_O, Qt::Key_S, Qt::Key_P, Qt::Key_D, Qt::Key_L, Qt::Key_U,
                        Qt::Key_T, Qt::Key_1}) {
    Key(key, Qt::ControlModifier);
    Key(key, Qt::ControlModifier | Qt::ShiftModifier);
    Key(key, Qt::AltModifier);
  }
  EXPECT_EQ(pane_.Text(), "one\r\ntwo");
  EXPECT_TRUE(listener_.keys.empty());
  QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_N, Qt::ControlModifier);
  shortcut.ignore();
  QApplication::sendEvent(pane_.Widget(), &shortcut);
  EXPECT_FALSE(shortcut.isAccepted());
}

TEST_F(QtTextPaneTest, ZoomsWithThePlusOfEveryKeyboard) {
  Key(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
  Key(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
  Key(Qt::Key_Equal, Qt::ControlModifier);
  Key(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETZOOM), 2);
  Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETZOOM), 0);
}

TEST_F(QtTextPaneTest, CutsAndPastesWithoutChangingAByte) {
  using namespace std::string_literals;
  const std::string text = "\uFEFFa\0b\r\nc\rd\ne\u00e9"s;
  pane_.SetText(text);
  Key(Qt::Key_A, Qt::ControlModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  ExpectChangedOnce("");
  EXPECT_EQ(QApplication::clipboard()->mimeData()->text().toStdString(), text);
  Key(Qt::Key_C, Qt::ControlModifier);  // nothing selected: the clipboard stays
  Key(Qt::Key_V, Qt::ControlModifier);
  ExpectChangedOnce(text);
  Key(Qt::Key_Z, Qt::ControlModifier);
  ExpectChangedOnce("");
}

TEST_F(QtTextPaneTest, TakesDropsOfTextAndHandsOnDropsOfControls) {
  pane_.SetText("\u00e9 two");
  QMimeData text;
  text.setText(u"\uFEFFx\ry\n"_qs);
  Drop(text, PlaceOf(3));
  ExpectChangedOnce("\u00e9 \uFEFFx\ry\ntwo");
  EXPECT_EQ(pane_.TextRange(pane_.SelStart(), pane_.SelLength()), "\uFEFFx\ry\n");

  std::optional<QPoint> dropped;
  pane_.SetControlDropHandler([&](QPoint place) { dropped = place; });
  QMimeData control;
  control.setData(kControlMimeType, "lstFiles");
  control.setText("not this");
  Drop(control, {40, 30});
  EXPECT_EQ(dropped, Viewport()->mapTo(pane_.Widget(), QPoint(40, 30)));
  EXPECT_EQ(listener_.changes, 0);
}

TEST_F(QtTextPaneTest, TypesWhereTheCaretIsDrawn) {
  pane_.SetText("a\rx\n");
  pane_.Select(3, 0);
  Key(Qt::Key_Backspace);  // joins CR and LF
  ExpectChangedOnce("a\r\n");
  Key(Qt::Key_B);
  ExpectChangedOnce("ab\r\n");
}

TEST_F(QtTextPaneTest, TakesMarksOffTagsThatMatchNoMore) {
  pane_.SetText("<ul>text</ul><p></p>");
  pane_.Select(3, 0);
  EXPECT_EQ(Marked(), "<[ul]>text</[ul]><p></p>");
  Key(Qt::Key_X);
  EXPECT_EQ(Marked(), "<ulx>text</ul><p></p>");
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Marked(), "<[ul]>text</[ul]><p></p>");
  pane_.BeginUndoGroup();
  pane_.Select(0, 0);
  pane_.ReplaceSelection("0123456789 0123456789 ");
  pane_.Select(37, 0);
  pane_.EndUndoGroup();
  EXPECT_EQ(Marked(), "0123456789 0123456789 <ul>text</ul><[p]></[p]>");
}

TEST_F(QtTextPaneTest, ShowsTheWholeSelectionWithinAnUndoStep) {
  const std::string wide(500, 'x');
  std::string text = "word " + wide;
  for (int i = 0; i < 500; ++i) text += "\n";
  pane_.SetText(text + "end");
  pane_.Select(wide.size(), 5);
  EXPECT_GT(View().SendScintilla(Sci::SCI_GETXOFFSET), 0);
  pane_.BeginUndoGroup();
  pane_.Select(text.size(), 3);
  pane_.ShowSelection();
  EXPECT_GT(View().SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE), 0);
  pane_.Select(0, 4);
  pane_.ShowSelection();
  pane_.EndUndoGroup();
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETFIRSTVISIBLELINE), 0);
  EXPECT_EQ(View().SendScintilla(Sci::SCI_GETXOFFSET), 0);
}

TEST_F(QtTextPaneTest, ColoursServerCodeInTheLanguageOfThePage) {
  const auto style = [&](unsigned long position) {
    View().SendScintilla(Sci::SCI_COLOURISE, 0UL, -1L);
    return View().SendScintilla(Sci::SCI_GETSTYLEAT, position, 0L);
  };
  pane_.SetText("<% Dim x %>");
  EXPECT_EQ(style(3), QsciLexerHTML::ASPVBScriptKeyword);
  pane_.SetText("<%@ language=\"JScript\" %><% var x; %>");
  EXPECT_EQ(style(29), QsciLexerHTML::ASPJavaScriptKeyword);
}

TEST_F(QtTextPaneTest, KeepsACompositionOutOfTheSystemsEdits) {
  pane_.SetText("abc");
  pane_.Select(3, 0);
  QInputMethodEvent compose(QStringLiteral("\u304b\u306a"), {});
  QApplication::sendEvent(pane_.Widget(), &compose);
  pane_.SetText("x");
  QCoreApplication::processEvents();
  EXPECT_EQ(pane_.Text(), "x");
  EXPECT_EQ(listener_.changes, 1);  // of the composition's beginning

  QApplication::sendEvent(pane_.Widget(), &compose);
  listener_.changes = 0;
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("\u4eee"));
  QApplication::sendEvent(pane_.Widget(), &commit);
  ExpectChangedOnce("\u4eeex");
}

TEST_F(QtTextPaneTest, ShowsOneFontAndLegibleColoursLightOrDark) {
  const FontSpec font{"DejaVu Sans Mono", 13.5, true, true, true, true};
  pane_.SetFont(font);
  pane_.SetText("<p>x</p>");
  Key(Qt::Key_Z);
  EXPECT_EQ(pane_.Font(), font);
  for (const QRgb base : {0xFFFFFFU, 0x1E2227U, 0x808080U}) {
    QPalette palette;
    palette.setColor(QPalette::Base, QColor::fromRgb(base));
    palette.setColor(QPalette::Text, base == 0x1E2227U ? Qt::white : Qt::black);
    QApplication::setPalette(palette);
    const auto ask = [&](unsigned message, unsigned long style) {
      return View().SendScintilla(message, style, 0L);
    };
    for (unsigned long style = 0; style < 256; ++style) {
      char name[64] = "";
      View().SendScintilla(Sci::SCI_STYLEGETFONT, style, name);
      ASSERT_STREQ(name, font.name.c_str()) << style;
      ASSERT_EQ(ask(Sci::SCI_STYLEGETSIZEFRACTIONAL, style), 1350) << style;
      ASSERT_TRUE(ask(Sci::SCI_STYLEGETBOLD, style) && ask(Sci::SCI_STYLEGETITALIC, style) &&
                  ask(Sci::SCI_STYLEGETUNDERLINE, style) && !ask(Sci::SCI_STYLEGETEOLFILLED, style))
          << style;
      const auto colour = [&](unsigned message) {
        const auto value = static_cast<int>(ask(message, style));  // red in the lowest byte
        return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
      };
      if (style == Sci::STYLE_CALLTIP) continue;  // never shown
      ASSERT_GE(ContrastRatio(colour(Sci::SCI_STYLEGETFORE), colour(Sci::SCI_STYLEGETBACK)), 4.5)
          << style << " on " << base;
    }
  }
  QApplication::setPalette(QPalette());
  EXPECT_EQ(View().SendScintilla(Sci::SCI_INDICATOREND, 8UL, 0L), 9L);  // all struck through
}

TEST_F(QtTextPaneTest, FitsTheMarginToTheLineNumbers) {
  pane_.SetText(std::string(100'000, '\n'));
  const int width = View().marginWidth(0);
  pane_.SetText("short");
  EXPECT_LT(View().marginWidth(0), width);
}

TEST(QtTextPaneLife, OutlivesItsWidgetAndTheOtherWayRound) {
  auto window = std::make_unique<QWidget>();
  auto pane = std::make_unique<QtTextPane>();
  pane->Widget()->setParent(window.get());
  pane->SetText("text");
  window.reset();
  EXPECT_EQ(pane->Widget(), nullptr);
  pane->Select(1, 1);
  pane->ReplaceSelection("x");
  EXPECT_EQ(pane->Text(), "");

  window = std::make_unique<QWidget>();
  pane = std::make_unique<QtTextPane>();
  Listener listener(*pane);
  pane->SetListener(&listener);
  QWidget* widget = pane->Widget();
  widget->setParent(window.get());
  pane.reset();
  QTest::keyClick(widget, Qt::Key_A);
  EXPECT_EQ(listener.changes, 0);
}

}  // namespace
}  // namespace tagsmith
