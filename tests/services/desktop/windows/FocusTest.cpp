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

class Probe : public ProbeForm {
 public:
  explicit Probe(Screen& screen) : ProbeForm(screen) {
    StackControls();
    cmdQuiet.SetFocusOnClick(false);
    tabTools.onGotFocus = [this] {
      log.push_back("tabs");
      txtEdit.SetFocus();
    };
    txtName.onGotFocus = Log("name");
    cmdQuiet.onGotFocus = Log("quiet");
    txtEdit.onGotFocus = Log("pane");
  }

  SSTab tabTools{*this, "tabTools", TabSide::kTop, {"A", "B"}};
  Label lblName{*this, "lblName", "&Name"};
  TextBox txtName{*this, "txtName"};
  CommandButton cmdQuiet{*this, "cmdQuiet"};
  RichTextBox txtEdit{*this, "txtEdit"};
};

class Focus : public ShownTest<Probe> {
 protected:
  void SetUp() override {
    ShownTest::SetUp();
    form.txtEdit.SetFocus();
    form.TakeLog();
  }

  void Click(const Control& control) { QTest::mouseClick(form.Widget(control), Qt::LeftButton); }
  bool PaneHasKeyboard() { return QApplication::focusWidget() == form.Widget(form.txtEdit); }
};

TEST_F(Focus, MouseTabAndAccessKeyTellOnceEach) {
  Click(form.txtName);
  Click(form.txtName);
  EXPECT_EQ(form.TakeLog(), (Strings{"name"}));
  auto* strip = form.Widget(form.tabTools)->findChild<QTabBar*>();
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  EXPECT_EQ(form.TakeLog(), (Strings{"tabs", "pane"}));
  EXPECT_TRUE(PaneHasKeyboard());
  QTest::keyClick(&form.Window(), Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(form.TakeLog(), (Strings{"name"}));
  QTest::keyClick(form.Widget(form.txtName), Qt::Key_Tab);
  EXPECT_EQ(form.TakeLog(), (Strings{"quiet"}));
  Click(form.cmdQuiet);
  EXPECT_EQ(form.TakeLog(), Strings()) << "a click on it leaves the focus where it is";
}

TEST_F(Focus, ReactivatedWindowsAndClosedMenusTellNothing) {
  ProbeForm other(screen);
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
  ProbeForm other(screen);
  other.ShowAndWait();
  form.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form.Window()));
  EXPECT_FALSE(PaneHasKeyboard());
  QTest::mouseClick(static_cast<QAbstractScrollArea*>(form.Widget(form.txtEdit))->viewport(),
                    Qt::LeftButton);
  EXPECT_EQ(form.TakeLog(), (Strings{"pane"}));
  EXPECT_TRUE(PaneHasKeyboard());
}

TEST_F(Focus, AFormComesUpWithTheKeyboardWhereItWantsItAndTellsNothing) {
  Probe other(screen);
  other.SetInitialFocus(other.txtName);
  other.ShowAndWait();
  EXPECT_EQ(QApplication::focusWidget(), other.Widget(other.txtName));
  EXPECT_EQ(other.TakeLog(), Strings());
  QTest::mouseClick(other.Widget(other.txtName), Qt::LeftButton);
  EXPECT_EQ(other.TakeLog(), (Strings{"name"})) << "as with a first field";
}

TEST_F(Focus, SetFocusIsSynchronousAndBringsItsWindow) {
  ProbeForm other(screen);
  auto& field = other.Add<TextBox>("txtOther");
  field.onGotFocus = form.Log("not shown yet");
  field.SetFocus();
  other.ShowAndWait();
  EXPECT_EQ(form.TakeLog(), Strings());
  form.cmdQuiet.SetEnabled(false);
  form.cmdQuiet.SetFocus();
  form.txtName.SetFocus();
  EXPECT_EQ(form.log, (Strings{"name"}));
  EXPECT_TRUE(QTest::qWaitForWindowActive(&form.Window()));
  EXPECT_EQ(QApplication::focusWidget(), form.Widget(form.txtName));
  EXPECT_EQ(form.TakeLog(), (Strings{"name"}));
}

}  // namespace
}  // namespace tagsmith
