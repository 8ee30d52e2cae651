// The tag dialogs in their windows: opened by a click, worked with keys and mouse, read in the
// pane.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QGuiApplication>
#include <QTest>
#include <functional>

#include "Program.h"
#include "services/desktop/windows/QtWindowSystem.h"

namespace tagsmith {
namespace {

using Keys = std::vector<Qt::Key>;

/// The program in its window, with a selected word in the page.
class DialogWindows : public testing::Test {
 protected:
  DialogWindows() { Put("<P>Köln</P>", 3, 5); }

  void Put(std::string_view text, std::size_t start, std::size_t length) {
    frmMain& form = program.Form();
    form.txtEdit.SetText(text);
    form.txtEdit.EmptyUndoHistory();
    form.txtEdit.Pane().Select(start, length);
    form.MarkUnchanged();
  }

  /// Presses a button of the main window by mouse; `act` is done in the window `name` that opens.
  void Open(const char* button, const char* name, const std::function<void(QWidget&)>& act) {
    bool opened = false;
    const WhenAsked<QWidget> asked([&](QWidget& window) {
      EXPECT_EQ(window.objectName(), name);
      ASSERT_TRUE(
          QTest::qWaitFor([&window] { return window.isAncestorOf(QApplication::focusWidget()); }));
      opened = true;
      act(window);
      if (QApplication::activeModalWidget() == &window) window.close();
    });
    QWidget* main = QtWindowSystem::WindowOf(program.Form());
    QTest::mouseClick(main->findChild<QAbstractButton*>(button), Qt::LeftButton);
    EXPECT_TRUE(opened) << button;
  }

  static void Press(QWidget& window, const char* button) {
    QTest::mouseClick(window.findChild<QAbstractButton*>(button), Qt::LeftButton);
  }
  static void Type(const char* text, const Keys& keys = {}) {
    for (const QChar letter : QString::fromUtf8(text)) {
      QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, letter,
                          Qt::NoModifier);
    }
    for (const Qt::Key key : keys) QTest::keyClick(QApplication::focusWidget(), key);
  }
  void Undo() {
    QWidget* main = QtWindowSystem::WindowOf(program.Form());
    QTest::keySequence(main->findChild<QWidget*>("txtEdit"), QKeySequence::Undo);
  }
  std::string Text() { return program.Form().txtEdit.Text(); }

  UserFolder user;
  Program program{user};
};

TEST_F(DialogWindows, InsertInOneUndoStepAndKeepTheClipboard) {
  const struct {
    const char* button;
    const char* window;
    std::function<void(QWidget&)> act;
    const char* after;
  } kCases[] = {
      {"cmdFastAnchor", "frmAnchor",
       [](QWidget&) {
         Type("a b.html", {Qt::Key_Tab, Qt::Key_Tab}), Type("_top", {Qt::Key_Enter});
       },
       R"(<P><A HREF="a b.html" Target="_top">Köln</A></P>)"},
      {"cmdFastLine", "frmHR",
       [](QWidget& window) {
         window.findChild<QComboBox*>("cboAlign")->setFocus();
         QTest::keySequence(QApplication::focusWidget(), QKeySequence::SelectAll);
         Type("", {Qt::Key_Delete, Qt::Key_Return});
       },
       R"(<P><HR Color="#FFFFFF">Köln</P>)"},
      {"cmdFastColor", "frmColors",
       [](QWidget& window) {
         Press(window, "chkColor");
         window.findChild<QWidget*>("lstColors")->setFocus();
         Type("", {Qt::Key_Down});
         Press(window, "cmdInsert");
       },
       R"(<P>"ANTIQUEWHITE"</P>)"},
      {"cmdFastAnchor", "frmAnchor", [](QWidget&) { Type("x", {Qt::Key_Escape}); }, "<P>Köln</P>"},
  };
  const std::string before = Text();
  for (const auto& row : kCases) {
    SCOPED_TRACE(row.window);
    QGuiApplication::clipboard()->setText("kept");
    Put(before, 3, 5);
    Open(row.button, row.window, row.act);
    EXPECT_EQ(Text(), row.after);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "kept");
    if (Text() != before) Undo();
    EXPECT_EQ(Text(), before);
  }
}

TEST_F(DialogWindows, TableIsBuiltWithTheKeyboardAlone) {
  Open("cmdFastTable", "frmTables", [](QWidget& window) {
    window.findChild<QWidget*>("sldCols")->setFocus();
    Type("", {Qt::Key_Right, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Down});
    Type("", {Qt::Key_Tab, Qt::Key_Right, Qt::Key_Down, Qt::Key_Tab});
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "txtCellText");
    Type("zwölf", {Qt::Key_Return}), Type("x", {Qt::Key_Tab, Qt::Key_Space});
    Press(window, "cmdInsert");
  });
  EXPECT_EQ(Text(),
            "<P><TABLE Align=\"Center\" VAlign=\"Top\" BgColor=\"#FFFFFF\">\r\n"
            "     <TR>\r\n          <TH></TH>\r\n          <TH></TH>\r\n     </TR>\r\n"
            "     <TR>\r\n          <TD></TD>\r\n          <TD>zwölf\r\nx</TD>\r\n     </TR>\r\n"
            "     <TR>\r\n          <TD></TD>\r\n          <TD></TD>\r\n     </TR>\r\n"
            "</TABLE></P>");
}

TEST_F(DialogWindows, JumpStartShowsThePickedColourAndMakesThePage) {
  Open("cmdEasyBegin", "frmJumpStart", [](QWidget& window) {
    Type("Köln");
    const WhenAsked<QColorDialog> asked([](QColorDialog& dialog) {
      dialog.setCurrentColor(QColor(0, 128, 255));
      dialog.accept();
    });
    Press(window, "cmdColors_0");
    auto* preview = window.findChild<QWidget*>("picBackColor");
    EXPECT_EQ(preview->grab().toImage().pixelColor(preview->width() / 2, 3), QColor(0, 128, 255));
    Press(window, "cmdCreate");
  });
  EXPECT_NE(Text().find("<TITLE>Köln</TITLE>"), std::string::npos);
  EXPECT_NE(Text().find(R"(<BODY BgColor="#0080FF" Text="#FFFFFF")"), std::string::npos);
  Undo();
  EXPECT_NE(Text().find("<BODY"), std::string::npos) << "undo leads into the page before";
}

}  // namespace
}  // namespace tagsmith
