#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QFocusEvent>
#include <QTabBar>

#include "services/Buttons.h"
#include "services/Graphics.h"
#include "services/RichTextBox.h"
#include "services/SSTab.h"
#include "services/TextBox.h"
#include "services/desktop/windows/ShownForm.h"

namespace tagsmith {
namespace {

class Probe : public ShownForm {
 public:
  explicit Probe(Screen& screen) : ShownForm(screen) {
    SetBorder(BorderStyle::kSizable);
    SetWidth(10500);
    SetHeight(9000);
    tabTools.Move({0, 0, 8000, 1000});
    lblName.Move({0, 1100, 900, 300});
    txtName.Move({1000, 1100, 2000, 375});
    cmdQuiet.Move({3100, 1100, 375, 375});
    cmdQuiet.SetFocusOnClick(false);
    cmdGo.Move({3600, 1100, 1500, 375});
    txtEdit.Move({0, 1600, 8000, 3000});
    tabTools.onGotFocus = [this] {
      log.push_back("tabs");
      txtEdit.SetFocus();
    };
    txtName.onGotFocus = Log("name");
    cmdGo.onGotFocus = Log("go");
    cmdQuiet.onGotFocus = Log("quiet");
    txtEdit.onGotFocus = Log("pane");
  }

  SSTab tabTools{*this, "tabTools", TabSide::kTop, {"A", "B"}};
  Label lblName{*this, "lblName", "&Name"};
  TextBox txtName{*this, "txtName"};
  CommandButton cmdQuiet{*this, "cmdQuiet"};
  CommandButton cmdGo{*this, "cmdGo"};
  RichTextBox txtEdit{*this, "txtEdit"};
};

class OtherForm : public ShownForm {
 public:
  explicit OtherForm(Screen& screen) : ShownForm(screen) {
    SetBorder(BorderStyle::kSizable);
    SetWidth(3000);
    SetHeight(3000);
  }
};

class Focus : public testing::Test {
 protected:
  void SetUp() override {
    form.ShowAndWait();
    form.txtEdit.SetFocus();
    form.TakeLog();
  }

  void Click(const Control& control) { QTest::mouseClick(form.Widget(control), Qt::LeftButton); }
  bool PaneHasKeyboard() {
    QWidget* pane = static_cast<QWidget*>(form.Widget(form.txtEdit));
    return QApplication::focusWidget() == pane;
  }

  Screen screen;
  Probe form{screen};
};

TEST_F(Focus, MouseTabAndAccessKeyTellOnceEach) {
  Click(form.txtName);
  Click(form.txtName);
  EXPECT_EQ(form.TakeLog(), (Strings{"name"}));
  QTest::keyClick(form.Widget(form.txtName), Qt::Key_Tab);
  EXPECT_EQ(form.TakeLog(), (Strings{"quiet"}));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(form.TakeLog(), (Strings{"go"}));
  QTest::keyClick(&form.Window(), Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(form.TakeLog(), (Strings{"name"}));
  Click(form.cmdQuiet);
  EXPECT_EQ(form.TakeLog(), Strings()) << "a click on it leaves the focus where it is";
}

TEST_F(Focus, AClickOnATabEndsUpInThePane) {
  Click(form.txtName);
  form.TakeLog();
  auto* strip = form.Widget(form.tabTools)->findChild<QTabBar*>();
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  EXPECT_EQ(form.TakeLog(), (Strings{"tabs", "pane"}));
  EXPECT_EQ(form.tabTools.Tab(), 1);
  EXPECT_TRUE(PaneHasKeyboard());
}

TEST_F(Focus, ReactivatedWindowsAndClosedMenusTellNothing) {
  OtherForm other(screen);
  other.ShowAndWait();
  form.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form.Window()));
  EXPECT_TRUE(PaneHasKeyboard());
  for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::MenuBarFocusReason,
                                       Qt::ActiveWindowFocusReason, Qt::OtherFocusReason}) {
    QFocusEvent event(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(form.Widget(form.txtName), &event);
  }
  EXPECT_EQ(form.TakeLog(), Strings());
  EXPECT_TRUE(PaneHasKeyboard());
}

TEST_F(Focus, AfterAClearTheNextClickTellsAlsoWhenTheWindowCameBackMeanwhile) {
  form.ClearFocus();
  EXPECT_FALSE(PaneHasKeyboard());
  QTest::keyClicks(QApplication::focusWidget(), "lost");
  EXPECT_EQ(form.txtEdit.Text(), "");
  OtherForm other(screen);
  other.ShowAndWait();
  form.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form.Window()));
  EXPECT_FALSE(PaneHasKeyboard());
  QTest::mouseClick(static_cast<QAbstractScrollArea*>(form.Widget(form.txtEdit))->viewport(),
                    Qt::LeftButton);
  EXPECT_EQ(form.TakeLog(), (Strings{"pane"}));
  EXPECT_TRUE(PaneHasKeyboard());
}

TEST_F(Focus, SetFocusIsSynchronousAndBringsItsWindow) {
  OtherForm other(screen);
  auto& field = other.Add<TextBox>("txtOther");
  other.ShowAndWait();
  field.SetFocus();
  form.txtName.SetFocus();
  EXPECT_EQ(form.log, (Strings{"name"}));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form.Window()));
  EXPECT_EQ(QApplication::focusWidget(), form.Widget(form.txtName));
  EXPECT_EQ(form.TakeLog(), (Strings{"name"}));
}

}  // namespace
}  // namespace tagsmith
