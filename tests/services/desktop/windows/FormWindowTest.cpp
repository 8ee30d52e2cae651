#include <gtest/gtest.h>

#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>

#include "services/Buttons.h"
#include "services/Lists.h"
#include "services/Menu.h"
#include "services/SSTab.h"
#include "services/TextBox.h"
#include "services/desktop/windows/ShownForm.h"

namespace tagsmith {
namespace {

/// Resizable, with a smallest size, a status bar and a list that follows the lower edge.
class Resizable : public ShownForm {
 public:
  explicit Resizable(Screen& screen) : ShownForm(screen) {
    SetBorder(BorderStyle::kSizable);
    SetWidth(9525);
    SetHeight(7710);
    status.Move({0, 6765, 9405, 255});
    list.Move({0, 900, 2000, 6000});
    onResize = [this] {
      log.push_back("resize");
      if (Width() < 9000) SetWidth(9000);
      if (Height() < 4600) SetHeight(4600);
      list.SetHeight(Height() - 1500);
    };
  }

  QWidget& Client() { return *Widget(list)->parentWidget(); }

  Menu mnuFile{*this, "mnuFile", "&File"};
  Menu mnuExit{*this, "mnuExit", "E&xit", &mnuFile};
  ListBox list{*this, "list", false};
  StatusBar status{*this, "status"};
};

class FormSize : public testing::Test {
 protected:
  void SetUp() override { form.ShowAndWait(); }

  double Factor() { return form.Client().width() * 15.0 / form.ScaleWidth(); }
  void Resize(QSize size) {
    form.Window().resize(size);
    QTest::qWait(20);
  }

  Screen screen;
  Resizable form{screen};
};

TEST_F(FormSize, OpensAtTheModelsSizeWithoutAnEvent) {
  EXPECT_EQ(form.log, Strings());
  EXPECT_NEAR(form.Client().height() * 15.0 / form.ScaleHeight(), Factor(), 0.01);
  EXPECT_EQ(form.Window().height(),
            form.Client().height() + form.Window().findChild<QMenuBar*>()->height());
}

TEST_F(FormSize, TheModelFollowsTheWindowAndTheWindowTheModel) {
  Resize(form.Window().size() + QSize(60, 40));
  EXPECT_EQ(form.TakeLog(), (Strings{"resize"}));
  EXPECT_NEAR(form.Width(), 9525 + 60 * 15 / Factor(), 15);
  form.SetWidth(10500);
  EXPECT_EQ(form.TakeLog(), (Strings{"resize"}));
  EXPECT_NEAR(form.Client().width(), (10500 - 120) / 15.0 * Factor(), 1);
  EXPECT_EQ(form.Width(), 10500);
}

TEST_F(FormSize, TooSmallIsAnsweredOnceAndARefusalIsAccepted) {
  Resize(QSize(200, 100));
  EXPECT_EQ(form.Width(), 9000);
  EXPECT_EQ(form.Height(), 4600);
  EXPECT_NEAR(form.Client().width(), (9000 - 120) / 15.0 * Factor(), 1);
  // A window manager that insists: the same small size again and again.
  const QSize size = form.Window().size();
  form.TakeLog();
  for (int i = 0; i < 3; ++i) {
    QResizeEvent insists(QSize(200, 100), form.Client().size());
    QCoreApplication::sendEvent(&form.Client(), &insists);
    QTest::qWait(10);
  }
  EXPECT_EQ(form.Width(), 9000);
  EXPECT_EQ(form.Window().size(), size);
  EXPECT_LE(form.TakeLog().size(), 9U);
}

TEST_F(FormSize, ViewsAreCutAboveTheStatusBar) {
  const auto bottom = [](const QWidget* widget) { return widget->y() + widget->height(); };
  const QWidget* status = form.Widget(form.status);
  for (const Twips height : {20000, 6000}) {
    form.list.SetHeight(height);
    EXPECT_LE(bottom(form.Widget(form.list)), status->y());
    EXPECT_EQ(bottom(status), form.Client().height());
    EXPECT_EQ(status->width(), form.Client().width());
    form.SetHeight(6000);
  }
}

class Pages : public ShownForm {
 public:
  explicit Pages(Screen& screen) : ShownForm(screen) {
    SetBorder(BorderStyle::kSizable);
    SetWidth(9000);
    SetHeight(6000);
    outer.Move({0, 0, 8000, 3000});
    inner.Move({600, 60, 7000, 2500});
    inner.SetContainer(outer, 1);
    first.SetContainer(inner, 0);
    second.SetContainer(inner, 1);
    first.Move({150, 600, 1500, 375});
    second.Move({150, 600, 1500, 375});
    last.Move({0, 3500, 1500, 375});
  }

  SSTab outer{*this, "outer", TabSide::kLeft, {"A", "B"}};
  SSTab inner{*this, "inner", TabSide::kTop, {"C", "D"}};
  TextBox first{*this, "first"};
  TextBox second{*this, "second"};
  TextBox last{*this, "last"};
};

TEST(TabPages, ViewsAreMadeWhenTheirPageIsFirstShown) {
  Screen screen;
  Pages form(screen);
  form.ShowAndWait();
  EXPECT_EQ(form.Widget(form.inner), nullptr);
  form.second.SetText("written before it was seen");
  form.outer.SetTab(1);
  ASSERT_NE(form.Widget(form.first), nullptr);
  EXPECT_EQ(form.Widget(form.second), nullptr);
  auto* strip = form.Widget(form.inner)->findChild<QTabBar*>();
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  ASSERT_TRUE(form.Widget(form.second)->isVisible());
  EXPECT_FALSE(form.Widget(form.first)->isVisible());
  // Its place counts from the corner of the strip of tabs that it stands on.
  const QPoint corner = form.Widget(form.second)->mapTo(form.Widget(form.inner), QPoint());
  EXPECT_NEAR(corner.y(), 4 * corner.x(), 4);
  // It comes into the Tab order where the form has it.
  form.Widget(form.second)->setFocus();
  QTest::keyClick(form.Widget(form.second), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), form.Widget(form.last));
}

TEST(LateControls, GetTheirViewsAndLoseThem) {
  Screen screen;
  Pages form(screen);
  form.ShowAndWait();
  {
    CommandButton late(form, "late");
    late.SetContainer(form.outer, 0);
    late.Move({600, 600, 1500, 375});
    late.onClick = form.Log("late");
    form.TakeLog();
    ASSERT_NE(form.Widget(late), nullptr);
    QTest::mouseClick(form.Widget(late), Qt::LeftButton);
    EXPECT_EQ(form.TakeLog(), (Strings{"late"}));
  }
  form.Add<TextBox>("another");
  form.TakeLog();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(form.Window().findChild<QWidget*>("late"), nullptr);
}

/// A fixed dialog that unloads itself.
class Dialog : public ShownForm {
 public:
  explicit Dialog(Screen& screen) : ShownForm(screen) {
    cmdInsert.SetCaption("Insert");
    cmdInsert.onClick = [this] {
      log.push_back("insert");
      Unload();
      log.push_back("after " + txtName.Text());
    };
    onUnload = [this](bool& cancel) {
      log.push_back("unload");
      cancel = stays;
    };
    SetArrangement(Column({txtName, cmdOther, ButtonRow({cmdInsert})}));
    SetDefaultButton(cmdInsert);
  }
  ~Dialog() override {
    if (destroyed != nullptr) *destroyed = true;
  }

  bool stays = false;
  bool* destroyed = nullptr;
  TextBox txtName{*this, "txtName"};
  CommandButton cmdOther{*this, "cmdOther"};
  CommandButton cmdInsert{*this, "cmdInsert"};
};

TEST(DialogKeys, EnterPressesTheDefaultButtonAndEscapeCloses) {
  Screen screen;
  Dialog form(screen);
  form.cmdOther.onClick = form.Log("other");
  form.stays = true;
  form.ShowAndWait();
  QTest::keyClick(form.Widget(form.cmdOther), Qt::Key_Return);
  EXPECT_EQ(form.TakeLog(), (Strings{"other"})) << "the button with the focus has its own use";
  QTest::keyClick(form.Widget(form.txtName), Qt::Key_Escape);
  form.Window().close();
  EXPECT_EQ(form.TakeLog(), (Strings{"unload", "unload"}));
  EXPECT_TRUE(form.Window().isVisible()) << "the form has refused";
  form.stays = false;
  form.txtName.onKeyPress = [&form](int& key) {
    if (key == '\r') form.cmdInsert.Click();
  };
  form.txtName.SetText("x");
  QTest::keyClick(form.Widget(form.txtName), Qt::Key_Return);
  EXPECT_EQ(form.TakeLog(), (Strings{"insert", "unload", "after x"})) << "pressed once";
  EXPECT_FALSE(form.IsVisible());
}

TEST(ModalForms, BlockUntilTheyUnloadInsideTheirOwnHandler) {
  Screen screen;
  Resizable owner(screen);
  owner.ShowAndWait();
  bool destroyed = false;
  Strings log;
  QTimer::singleShot(0, [&] {
    auto* dialog = screen.platform.forms.Loaded<Dialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog->Window()));
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog->Window());
    dialog->destroyed = &destroyed;
    QTest::mouseClick(dialog->Widget(dialog->cmdInsert), Qt::LeftButton);
    EXPECT_FALSE(destroyed) << "it is still being shown";
    log = dialog->log;
  });
  screen.platform.forms.Reach<Dialog>(screen).Show(Modality::kModal, &owner);
  EXPECT_EQ(log, (Strings{"insert", "unload", "after "}));
  EXPECT_TRUE(destroyed);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(screen.platform.forms.Active(), &owner);
}

TEST(ModelessForms, AreDestroyedRightAfterTheHandlerThatUnloadsThem) {
  Screen screen;
  auto& form = screen.platform.forms.Reach<Dialog>(screen);
  bool destroyed = false;
  form.destroyed = &destroyed;
  form.ShowAndWait();
  const QPointer<QPushButton> button = form.Widget<QPushButton>(form.cmdInsert);
  const QPointer<QWidget> window = &form.Window();
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_TRUE(destroyed);
  EXPECT_TRUE(button) << "deleted inside its own signal";
  EXPECT_FALSE(window->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(window);
}

TEST(FormLooks, ChangeWhileTheFormIsShown) {
  Screen screen;
  {
    Resizable form(screen);
    form.ShowAndWait();
    form.SetCaption("Tagsmith - \xC3\xA4.html");
    EXPECT_EQ(form.Window().windowTitle(), QString::fromUtf8("Tagsmith - \xC3\xA4.html"));
    const QPoint place = form.Window().pos();
    form.SetOnTop(true);
    EXPECT_TRUE(form.Window().isVisible());
    EXPECT_EQ(form.Window().pos(), place);
    EXPECT_TRUE(form.Window().isActiveWindow());
    EXPECT_TRUE(form.Window().windowFlags() & Qt::WindowStaysOnTopHint);
    form.SetMousePointer(kHourglass);
    form.SetMousePointer(kHourglass);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the form took it along";
}

}  // namespace
}  // namespace tagsmith
