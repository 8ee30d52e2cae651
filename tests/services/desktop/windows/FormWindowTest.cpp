#include <gtest/gtest.h>

#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <memory>

#include "services/Buttons.h"
#include "services/Lists.h"
#include "services/MSFlexGrid.h"
#include "services/SSTab.h"
#include "services/TextBox.h"
#include "services/desktop/windows/ShownForm.h"

namespace tagsmith {
namespace {

/// Resizable, with a smallest size, a status bar and a list that follows the lower edge.
class Resizable : public ProbeForm {
 public:
  explicit Resizable(Screen& screen) : ProbeForm(screen) {
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

  ListBox list{*this, "list", false};
  StatusBar status{*this, "status"};
};

class FormSize : public ShownTest<Resizable> {
 protected:
  void SetUp() override { form.ShowAndWait(); }

  double Factor() { return form.Client().width() * 15.0 / form.ScaleWidth(); }
  void Resize(QSize size) {
    form.Window().resize(size);
    QTest::qWait(20);
  }
};

TEST_F(FormSize, TheModelFollowsTheWindowAndTheWindowTheModel) {
  EXPECT_EQ(form.log, Strings()) << "opens without an event";
  Resize(form.Window().size() + QSize(60, 40));
  EXPECT_EQ(form.TakeLog(), (Strings{"resize"}));
  EXPECT_NEAR(form.Width(), 9525 + 60 * 15 / Factor(), 15);
  form.SetWidth(10500);
  EXPECT_EQ(form.TakeLog(), (Strings{"resize"}));
  EXPECT_NEAR(form.Client().width(), (10500 - 120) / 15.0 * Factor(), 1);
}

TEST_F(FormSize, TooSmallIsAnsweredOnceAndARefusalIsAccepted) {
  Resize(QSize(200, 100));
  EXPECT_EQ(form.Width(), 9000);
  EXPECT_EQ(form.Height(), 4600);
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
  form.list.SetHeight(20000);
  form.SetHeight(6000);
  EXPECT_LE(bottom(form.Widget(form.list)), form.Widget(form.status)->y());
  EXPECT_EQ(bottom(form.Widget(form.status)), form.Client().height());
}

TEST(TabPages, ViewsAreMadeWhenTheirPageIsFirstShown) {
  Screen screen;
  ProbeForm form(screen);
  auto& outer = form.Add<SSTab>("outer", TabSide::kLeft, Strings{"A", "B"});
  auto& inner = form.Add<SSTab>("inner", TabSide::kTop, Strings{"C", "D"});
  auto& first = form.Add<TextBox>("first");
  auto& second = form.Add<TextBox>("second");
  auto& last = form.Add<TextBox>("last");
  outer.Move({0, 0, 8000, 3000});
  inner.Move({600, 60, 7000, 2500});
  inner.SetContainer(outer, 1);
  first.SetContainer(inner, 0);
  second.SetContainer(inner, 1);
  second.Move({150, 600, 1500, 375});
  last.Move({0, 3500, 1500, 375});
  form.ShowAndWait();
  EXPECT_EQ(form.Widget(inner), nullptr);
  outer.SetTab(1);
  ASSERT_NE(form.Widget(first), nullptr);
  EXPECT_EQ(form.Widget(second), nullptr);
  auto* strip = form.Widget(inner)->findChild<QTabBar*>();
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  ASSERT_TRUE(form.Widget(second)->isVisible());
  EXPECT_FALSE(form.Widget(first)->isVisible());
  // It comes into the Tab order where the form has it.
  form.Widget(second)->setFocus();
  QTest::keyClick(form.Widget(second), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), form.Widget(last));
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
    SetArrangement(Column({txtName, cmdOther, grid, ButtonRow({cmdInsert})}));
    SetDefaultButton(cmdInsert);
  }

  bool stays = false;
  std::shared_ptr<bool> life = std::make_shared<bool>();
  TextBox txtName{*this, "txtName"};
  CommandButton cmdOther{*this, "cmdOther"};
  MSFlexGrid grid{*this, "grid", 2, 2};
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
  QTest::keyClick(form.Widget(form.grid), Qt::Key_Return);
  EXPECT_EQ(form.TakeLog(), (Strings{"insert", "unload", "after "}));
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
  std::weak_ptr<bool> life;
  Strings log;
  QTimer::singleShot(0, [&] {
    auto* dialog = screen.platform.forms.Loaded<Dialog>();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog->Window()));
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog->Window());
    life = dialog->life;
    QTest::mouseClick(dialog->Widget(dialog->cmdInsert), Qt::LeftButton);
    EXPECT_FALSE(life.expired()) << "it is still being shown";
    log = dialog->log;
  });
  screen.platform.forms.Reach<Dialog>(screen).Show(Modality::kModal, &owner);
  EXPECT_EQ(log, (Strings{"insert", "unload", "after "}));
  EXPECT_TRUE(life.expired());
  EXPECT_EQ(screen.platform.forms.Active(), &owner);
}

TEST(ModalForms, CloseWithEscapeAlsoWhenTheyAreSizable) {
  Screen screen;
  Resizable form(screen);
  QTimer::singleShot(0, [&form] {
    QTest::keyClick(&form.Window(), Qt::Key_Escape);
    EXPECT_FALSE(form.IsVisible());
    if (form.IsVisible()) form.Hide();
  });
  form.Show(Modality::kModal);
  form.ShowAndWait();
  QTest::keyClick(&form.Window(), Qt::Key_Escape);
  EXPECT_TRUE(form.IsVisible()) << "a window among others";
}

TEST(ModelessForms, AreDestroyedRightAfterTheHandlerThatUnloadsThem) {
  Screen screen;
  auto& form = screen.platform.forms.Reach<Dialog>(screen);
  const std::weak_ptr<bool> life = form.life;
  form.ShowAndWait();
  const QPointer<QPushButton> button = form.Widget<QPushButton>(form.cmdInsert);
  const QPointer<QWidget> window = &form.Window();
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_TRUE(life.expired());
  EXPECT_TRUE(button) << "deleted inside its own signal";
  EXPECT_FALSE(window->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(window);
}

}  // namespace
}  // namespace tagsmith
