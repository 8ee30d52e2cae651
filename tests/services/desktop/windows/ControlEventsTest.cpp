#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTabBar>
#include <QTableView>
#include <QWheelEvent>

#include "services/Buttons.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/MSFlexGrid.h"
#include "services/Menu.h"
#include "services/Ranges.h"
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
    cmdGo.Move({0, 0, 1500, 375});
    cmdGo.SetCaption("&Go");
    cmdTool.Move({1600, 0, 375, 375});
    cmdTool.SetPictureName("cmdBold");
    cmdTool.SetToolTipText("<B></B>");
    chkOn.Move({2000, 0, 1500, 375});
    optA.Move({3600, 0, 1200, 375});
    optB.Move({4900, 0, 1200, 375});
    txtOne.Move({0, 500, 3000, 375});
    txtMany.Move({0, 1000, 3000, 1500});
    txtMany.SetMultiLine(true);
    cboType.Move({3600, 500, 2000, 330});
    cboPick.Move({6000, 500, 2000, 330});
    sldSize.Move({3600, 1000, 3000, 500});
    tabPages.Move({0, 3000, 8000, 2500});
    grid.Move({3600, 1600, 4000, 1200});
    lblGrip.Move({9000, 0, 900, 3000});
    for (ComboBox* combo : {&cboType, &cboPick}) combo->AddItems({"ant", "bee", "cow"});

    cmdGo.onClick = Log("go");
    cmdTool.onClick = Log("tool");
    chkOn.onClick = Log("check");
    optA.onClick = Log("A");
    optB.onClick = Log("B");
    txtOne.onChange = Log("text");
    txtMany.onChange = Log("lines");
    cboType.onClick = Log("choose");
    cboType.onChange = Log("edit");
    cboPick.onClick = Log("pick");
    sldSize.onChange = Log("slide");
    tabPages.onClick = [this](int before) { log.push_back("tab from " + std::to_string(before)); };
    grid.onSelChange = Log("cell");
    mnuNew.onClick = Log("new");
    mnuFile.onClick = Log("file menu");
  }

  Menu mnuFile{*this, "mnuFile", "&File"};
  Menu mnuNew{*this, "mnuNew", "&New         here", &mnuFile, "Ctrl+N"};
  Menu mnuBar{*this, "mnuBar", "-", &mnuFile};
  Menu mnuRecent{*this, "mnuRecent", "", &mnuFile, "", 0};
  CommandButton cmdGo{*this, "cmdGo"};
  CommandButton cmdTool{*this, "cmdTool"};
  CheckBox chkOn{*this, "chkOn", "On"};
  OptionButton optA{*this, "optKind", "A", 0};
  OptionButton optB{*this, "optKind", "B", 1};
  TextBox txtOne{*this, "txtOne"};
  TextBox txtMany{*this, "txtMany"};
  ComboBox cboType{*this, "cboType", ComboStyle::kDropDownCombo, false};
  ComboBox cboPick{*this, "cboPick", ComboStyle::kDropDownList, false};
  Slider sldSize{*this, "sldSize", Orientation::kHorizontal, 1, 25};
  SSTab tabPages{*this, "tabPages", TabSide::kTop, {"One", "R && D"}};
  MSFlexGrid grid{*this, "grid", 3, 3};
  Label lblGrip{*this, "lblGrip", ""};
};

class ControlEvents : public testing::Test {
 protected:
  void SetUp() override {
    form.ShowAndWait();
    form.TakeLog();
  }

  Screen screen;
  Probe form{screen};
};

TEST_F(ControlEvents, AClickOnEachButtonIsOneEvent) {
  for (const Control* control : std::initializer_list<Control*>{
           &form.cmdGo, &form.cmdTool, &form.chkOn, &form.optA, &form.optB, &form.optB}) {
    form.Widget<QAbstractButton>(*control)->click();
  }
  EXPECT_EQ(form.TakeLog(), (Strings{"go", "tool", "check", "A", "B"}));
  EXPECT_EQ(form.chkOn.Value(), 1);
  EXPECT_FALSE(form.optA.Value());
  EXPECT_FALSE(form.Widget<QAbstractButton>(form.optA)->isChecked());
}

TEST_F(ControlEvents, WritesShowWithoutAnEcho) {
  form.chkOn.SetValue(1);
  form.optA.SetValue(true);
  form.optA.SetValue(false);
  form.txtOne.SetText("\xC2\xA0one");
  form.cboType.SetListIndex(1);
  form.cboType.SetText("free");
  form.sldSize.SetValue(7);
  form.tabPages.SetTab(1);
  form.cmdTool.SetEnabled(false);
  // Each is raised by the model alone.
  EXPECT_EQ(form.TakeLog(),
            (Strings{"check", "A", "text", "choose", "edit", "slide", "tab from 0"}));
  EXPECT_TRUE(form.Widget<QAbstractButton>(form.chkOn)->isChecked());
  EXPECT_FALSE(form.Widget<QAbstractButton>(form.optA)->isChecked());
  EXPECT_EQ(form.Widget<QLineEdit>(form.txtOne)->text(), QStringLiteral("\u00A0one"));
  EXPECT_EQ(form.Widget<QComboBox>(form.cboType)->currentText(), "free");
  EXPECT_EQ(form.Widget<QSlider>(form.sldSize)->value(), 7);
  EXPECT_EQ(form.Widget(form.tabPages)->findChild<QTabBar*>()->currentIndex(), 1);
  EXPECT_FALSE(form.Widget(form.cmdTool)->isEnabled());
}

TEST_F(ControlEvents, TypingIsAnEventAKeyAndAKeyCanBeTakenAway) {
  form.txtOne.onKeyPress = [](int& key) { key = key == 'x' ? 0 : key; };
  QTest::keyClicks(form.Widget(form.txtOne), "axb");
  EXPECT_EQ(form.TakeLog(), (Strings{"text", "text"}));
  EXPECT_EQ(form.txtOne.Text(), "ab");
}

TEST_F(ControlEvents, SeveralLinesKeepTheirLineEndsAroundAnEdit) {
  const std::string text = "one\ntwo\xC2\xA0!\r\nthree\r";
  form.txtMany.SetText(text);
  form.TakeLog();
  auto* edit = form.Widget<QPlainTextEdit>(form.txtMany);
  EXPECT_EQ(edit->document()->blockCount(), 4);
  EXPECT_EQ(form.txtMany.Text(), text);
  edit->moveCursor(QTextCursor::End);
  QTest::keyClick(edit, Qt::Key_Return);
  QTest::keyClicks(edit, "x");
  EXPECT_EQ(form.txtMany.Text(), text + "\r\nx");
  EXPECT_EQ(form.TakeLog().size(), 2U);
}

TEST_F(ControlEvents, TypingAnEntrysTextIntoAComboChoosesNothing) {
  auto* combo = form.Widget<QComboBox>(form.cboType);
  QTest::keyClicks(combo->lineEdit(), "be");
  EXPECT_EQ(combo->currentText(), "be") << "completed";
  QTest::keyClicks(combo->lineEdit(), "e");
  QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
  form.Widget(form.txtOne)->setFocus();
  EXPECT_EQ(form.TakeLog(), (Strings{"edit", "edit", "edit"}));
  EXPECT_EQ(form.cboType.ListIndex(), -1);
  EXPECT_EQ(combo->count(), 3);

  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(form.TakeLog(), (Strings{"choose"}));
  EXPECT_EQ(form.cboType.Text(), combo->currentText().toStdString());

  auto* list = form.Widget<QComboBox>(form.cboPick);
  QTest::keyClick(list, Qt::Key_C);
  EXPECT_EQ(form.cboPick.Text(), "cow");
  QWheelEvent wheel(QPointF(5, 5), list->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(list, &wheel);
  EXPECT_EQ(form.TakeLog(), (Strings{"pick"}));
}

TEST_F(ControlEvents, ItemsThatComeLaterAreShown) {
  form.cboPick.SetListIndex(2);
  form.TakeLog();
  form.cboPick.AddItem("dog");
  form.cboType.SetText("typed");
  form.cboType.AddItem("dog");
  EXPECT_EQ(form.Widget<QComboBox>(form.cboPick)->count(), 4);
  EXPECT_EQ(form.Widget<QComboBox>(form.cboPick)->currentText(), "cow");
  EXPECT_EQ(form.Widget<QComboBox>(form.cboType)->currentText(), "typed");
  form.cboPick.Clear();
  EXPECT_EQ(form.Widget<QComboBox>(form.cboPick)->currentIndex(), -1);
  EXPECT_EQ(form.TakeLog(), (Strings{"edit"}));
}

TEST_F(ControlEvents, SliderTabsAndGridTellOnce) {
  QTest::keyClick(form.Widget(form.sldSize), Qt::Key_Right);
  auto* strip = form.Widget(form.tabPages)->findChild<QTabBar*>();
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  auto* table = form.Widget<QTableView>(form.grid);
  const auto press = [table](int row, int column) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(row, column)).center());
  };
  press(0, 0);  // The current cell, but the user has selected none yet.
  press(0, 0);
  press(1, 2);
  QTest::keyClick(table, Qt::Key_Up);
  EXPECT_EQ(form.TakeLog(), (Strings{"slide", "tab from 0", "cell", "cell", "cell"}));
  EXPECT_EQ(form.grid.Row(), 0);
  EXPECT_EQ(form.grid.Col(), 2);
  form.grid.SetText("here");
  EXPECT_EQ(table->model()->index(0, 2).data().toString(), "here");
  form.grid.SetRows(2);
  EXPECT_EQ(table->model()->rowCount(), 2);
  EXPECT_EQ(form.TakeLog(), Strings());
}

TEST_F(ControlEvents, MenusShowTheirCaptionsAndTellOnce) {
  auto* bar = form.Window().findChild<QMenuBar*>();
  QMenu* menu = bar->actions().front()->menu();
  ASSERT_EQ(menu->actions().size(), 3);
  EXPECT_EQ(menu->actions()[0]->text(), "&New         here");
  EXPECT_TRUE(menu->actions()[1]->isSeparator());
  EXPECT_FALSE(menu->actions()[2]->isSeparator()) << "an empty caption is a blank entry";
  form.mnuRecent.SetPlainCaption(true);
  form.mnuRecent.SetCaption("c:\\a & b");
  EXPECT_EQ(menu->actions()[2]->text(), "c:\\a && b");

  QTest::keyClick(&form.Window(), Qt::Key_N, Qt::ControlModifier);
  menu->popup({});
  menu->close();
  EXPECT_EQ(form.TakeLog(), (Strings{"new", "file menu"}));
}

TEST_F(ControlEvents, AHandleHearsTheMouseInTwips) {
  Strings heard;
  form.lblGrip.onMouseDown = [&](int button, Twips, Twips) {
    heard.push_back("down " + std::to_string(button));
  };
  Twips x = 0;
  form.lblGrip.onMouseMove = [&](int held, Twips left, Twips) {
    heard.push_back("move " + std::to_string(held));
    x = left;
  };
  form.lblGrip.onMouseUp = [&](int button, Twips, Twips) {
    heard.push_back("up " + std::to_string(button));
  };
  QWidget* label = form.Widget(form.lblGrip);
  QTest::mousePress(label, Qt::LeftButton, {}, QPoint(0, 5));
  QTest::mouseEvent(QTest::MouseMove, label, Qt::LeftButton, {}, QPoint(30, 5));
  QTest::mouseRelease(label, Qt::LeftButton, {}, QPoint(30, 5));
  ASSERT_EQ(heard.front(), "down 1");
  EXPECT_EQ(heard.back(), "up 1");
  EXPECT_NEAR(x, 30.0 * 900 / label->width(), 15);
}

TEST_F(ControlEvents, ToolTipsAreShownLetterByLetterAndNameThePictureButtons) {
  EXPECT_EQ(form.Widget(form.cmdTool)->accessibleName(), "<B></B>");
  EXPECT_FALSE(form.Widget(form.cmdTool)->toolTip().contains("<B>"));
  EXPECT_EQ(form.Widget(form.tabPages)->findChild<QTabBar*>()->tabText(1), "R && D");
  form.tabPages.SetPlainCaptions(true);
  form.tabPages.SetTabCaption(0, "a&b.html");
  EXPECT_EQ(form.Widget(form.tabPages)->findChild<QTabBar*>()->tabText(0), "a&&b.html");
}

}  // namespace
}  // namespace tagsmith
