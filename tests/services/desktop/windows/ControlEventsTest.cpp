#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSlider>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTableView>
#include <algorithm>

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

class Probe : public ProbeForm {
 public:
  explicit Probe(Screen& screen) : ProbeForm(screen) {
    StackControls();
    cmdTool.SetToolTipText("<B></B>");
    txtMany.SetMultiLine(true);
    cboType.AddItems({"ant", "bee", "cow"});

    cmdTool.onClick = Log("tool");
    chkOn.onClick = Log("check");
    optA.onClick = Log("A");
    optB.onClick = Log("B");
    txtOne.onChange = Log("text");
    txtMany.onChange = Log("lines");
    cboType.onClick = Log("choose");
    cboType.onChange = Log("edit");
    sldSize.onChange = Log("slide");
    tabPages.onClick = [this](int before) { log.push_back("tab from " + std::to_string(before)); };
    grid.onSelChange = Log("cell");
    mnuHelp.onClick = Log("help");
    mnuNew.onClick = Log("new");
    mnuFile.onClick = Log("file menu");
  }

  Menu mnuFile{*this, "mnuFile", "&File"};
  Menu mnuNew{*this, "mnuNew", "&New         here", &mnuFile, "Ctrl+N"};
  Menu mnuBar{*this, "mnuBar", "-", &mnuFile};
  Menu mnuRecent{*this, "mnuRecent", "", &mnuFile, "", 0};
  Menu mnuHelp{*this, "mnuHelp", "&Help"};
  CommandButton cmdTool{*this, "cmdTool"};
  CheckBox chkOn{*this, "chkOn", "On"};
  OptionButton optA{*this, "optKind", "A", 0};
  OptionButton optB{*this, "optKind", "B", 1};
  TextBox txtOne{*this, "txtOne"};
  TextBox txtMany{*this, "txtMany"};
  ComboBox cboType{*this, "cboType", ComboStyle::kDropDownCombo, false};
  Slider sldSize{*this, "sldSize", Orientation::kHorizontal, 1, 25};
  SSTab tabPages{*this, "tabPages", TabSide::kTop, {"One", "R && D"}};
  MSFlexGrid grid{*this, "grid", 3, 3};
  Label lblName{*this, "lblName", ""};
  Slider sldUpright{*this, "sldUpright", Orientation::kVertical, 1, 25};
};

using ControlEvents = ShownTest<Probe>;

TEST_F(ControlEvents, AClickOnEachButtonIsOneEventAndTabGoesToTheChosenOption) {
  for (const Control* control : std::initializer_list<Control*>{
           &form.cmdTool, &form.chkOn, &form.optA, &form.optB, &form.optB}) {
    form.Widget<QAbstractButton>(*control)->click();
  }
  EXPECT_EQ(form.TakeLog(), (Strings{"tool", "check", "A", "B"}));
  EXPECT_EQ(form.chkOn.Value(), 1);
  EXPECT_FALSE(form.optA.Value());
  form.Widget(form.chkOn)->setFocus();
  QTest::keyClick(form.Widget(form.chkOn), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), form.Widget(form.optB));
}

TEST_F(ControlEvents, WritesShowWithoutAnEcho) {
  form.chkOn.SetValue(1);
  form.optA.SetValue(true);
  form.optA.SetValue(false);
  form.txtOne.SetText("\xC2\xA0one");
  form.cboType.SetListIndex(1);
  form.cboType.SetText("free");
  form.cboType.AddItem("dog");
  form.sldSize.SetValue(7);
  form.tabPages.SetTab(1);
  // Each is raised by the model alone.
  EXPECT_EQ(form.TakeLog(),
            (Strings{"check", "A", "text", "choose", "edit", "slide", "tab from 0"}));
  EXPECT_TRUE(form.Widget<QAbstractButton>(form.chkOn)->isChecked());
  EXPECT_FALSE(form.Widget<QAbstractButton>(form.optA)->isChecked());
  EXPECT_EQ(form.Widget<QLineEdit>(form.txtOne)->text(), QStringLiteral("\u00A0one"));
  form.txtOne.SetSelectsWritten(true);
  form.txtOne.SetText("two");
  EXPECT_EQ(form.Widget<QLineEdit>(form.txtOne)->selectedText(), "two");
  EXPECT_EQ(form.Widget<QComboBox>(form.cboType)->currentText(), "free");
  EXPECT_EQ(form.Widget<QSlider>(form.sldSize)->value(), 7);
  EXPECT_EQ(form.Widget(form.tabPages)->findChild<QTabBar*>()->currentIndex(), 1);
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
  edit->moveCursor(QTextCursor::End);
  QTest::keyClick(edit, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(edit, "x");
  EXPECT_EQ(form.txtMany.Text(), text + "\r\nx");
  EXPECT_EQ(form.TakeLog().size(), 2U);

  // In one line each is one character, and what is pasted ends as the others do.
  form.txtOne.SetText("ä\r\nb\nc");
  auto* line = form.Widget<QLineEdit>(form.txtOne);
  line->setCursorPosition(2);
  QTest::keyClick(line, Qt::Key_Backspace);
  EXPECT_EQ(form.txtOne.Text(), "äb\nc");
  QGuiApplication::clipboard()->setText("1\n2");
  line->paste();
  EXPECT_EQ(form.txtOne.Text(), "ä1\r\n2b\nc");
}

TEST_F(ControlEvents, TypingAnEntrysTextIntoAComboChoosesNothing) {
  auto* combo = form.Widget<QComboBox>(form.cboType);
  QTest::keyClicks(combo->lineEdit(), "bee");
  QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
  form.Widget(form.txtOne)->setFocus();
  EXPECT_EQ(form.TakeLog(), (Strings{"edit", "edit", "edit"}));
  EXPECT_EQ(form.cboType.ListIndex(), -1);
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(form.TakeLog(), (Strings{"choose"}));
  EXPECT_EQ(form.cboType.Text(), combo->currentText().toStdString());
}

TEST_F(ControlEvents, ALongComboScrollsAndAFieldKeepsItsSelectionInAMenu) {
  ProbeForm other(screen);
  auto& cboTags = other.Add<ComboBox>("cboTags", ComboStyle::kDropDownList, false);
  cboTags.AddItems(Strings(200, "tag"));
  cboTags.Move({0, 0, 3000, 500});
  other.ShowAndWait();
  auto* list = other.Widget<QComboBox>(cboTags);
  list->showPopup();
  EXPECT_LE(list->view()->viewport()->height(), 20 * list->view()->sizeHintForRow(0));
  EXPECT_GE(list->view()->viewport()->height(), 10 * list->view()->sizeHintForRow(0));
  list->hidePopup();

  form.Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form.Window()));
  auto* combo = form.Widget<QComboBox>(form.cboType);
  combo->setFocus();
  QTest::keyClicks(combo, "beetle");
  combo->lineEdit()->setSelection(1, 3);
  form.Window().findChild<QMenuBar*>()->setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(combo->lineEdit()->selectedText(), "eet");
  combo->setFocus(Qt::MenuBarFocusReason);
  EXPECT_EQ(combo->lineEdit()->selectedText(), "eet");
  form.Widget(form.txtOne)->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(combo->lineEdit()->selectedText(), "");
}

TEST_F(ControlEvents, SlidersTabsAndGridTellOnce) {
  QTest::keyClick(form.Widget(form.sldSize), Qt::Key_Right);
  QTest::keyClick(form.Widget(form.sldUpright), Qt::Key_Down);
  EXPECT_EQ(form.sldUpright.Value(), 2) << "grows downwards";
  EXPECT_TRUE(form.Widget<QSlider>(form.sldUpright)->invertedAppearance());
  auto* strip = form.Widget(form.tabPages)->findChild<QTabBar*>();
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  QTest::mouseClick(strip, Qt::LeftButton, {}, strip->tabRect(1).center());
  auto* table = form.Widget<QTableView>(form.grid);
  // The current cell, but the user has selected none yet.
  const QPoint cell = table->visualRect(table->model()->index(0, 0)).center();
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell);
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell);
  QTest::keyClick(table, Qt::Key_Right);
  EXPECT_EQ(form.TakeLog(), (Strings{"slide", "tab from 0", "cell", "cell"}));
}

TEST_F(ControlEvents, AnArrowKeySelectsTheFirstCellAndShrinkingKeepsTheCurrentInSight) {
  auto* table = form.Widget<QTableView>(form.grid);
  table->setFocus(Qt::TabFocusReason);
  QTest::keyClick(table, Qt::Key_Left);
  QTest::keyClick(table, Qt::Key_Left);
  EXPECT_EQ(form.TakeLog(), (Strings{"cell"}));
  form.grid.SetRows(20);
  form.grid.SetCols(20);
  form.grid.SetRow(12);
  form.grid.SetCol(12);
  form.grid.SetText("one\r\ntwo");
  form.grid.SetRows(13);
  form.grid.SetCols(19);
  const QModelIndex cell = table->model()->index(12, 12);
  EXPECT_TRUE(table->viewport()->rect().intersects(table->visualRect(cell)));
  EXPECT_EQ(qobject_cast<QStyledItemDelegate*>(table->itemDelegate())
                ->displayText(cell.data(), QLocale())
                .toStdString(),
            "one\xE2\x80\xA6");
  EXPECT_EQ(form.TakeLog(), Strings());
}

TEST_F(ControlEvents, MenusTellOnceAndFileNamesAreShownLetterByLetter) {
  const QMenuBar* bar = form.Window().findChild<QMenuBar*>();
  QMenu* menu = bar->actions().front()->menu();
  QTest::keyClick(&form.Window(), Qt::Key_N, Qt::ControlModifier);
  menu->popup({});
  menu->close();
  QTest::keyClick(&form.Window(), Qt::Key_H, Qt::AltModifier);
  EXPECT_EQ(form.TakeLog(), (Strings{"new", "file menu", "help"}));

  ASSERT_EQ(menu->actions().size(), 3);
  EXPECT_TRUE(menu->actions()[1]->isSeparator());
  EXPECT_FALSE(menu->actions()[2]->isSeparator()) << "an empty caption is a blank entry";
  form.mnuRecent.SetPlainCaption(true);
  form.mnuRecent.SetCaption("c:\\a & b");
  EXPECT_EQ(menu->actions()[2]->text(), "c:\\a && b");
  form.tabPages.SetPlainCaptions(true);
  form.tabPages.SetTabCaption(0, "a&b.html");
  EXPECT_EQ(form.Widget(form.tabPages)->findChild<QTabBar*>()->tabText(0), "a&&b.html");
  form.lblName.SetPlainCaption(true);
  form.lblName.SetCaption("R&D && b.html");
  EXPECT_EQ(form.Widget<QLabel>(form.lblName)->text(), "R&D && b.html");
  EXPECT_FALSE(form.Widget(form.cmdTool)->toolTip().contains("<B>"));
}

TEST_F(ControlEvents, AFileTabTellsItsNameWhereItIsCut) {
  ProbeForm other(screen);
  auto& tabs = other.Add<SSTab>("MyTabFiles", TabSide::kBottom, Strings{"", "", ""});
  tabs.SetPlainCaptions(true);
  tabs.Move({0, 0, 4500, 300});
  other.ShowAndWait();
  auto* strip = other.Widget(tabs)->findChild<QTabBar*>();
  const std::string longName = "a & b, " + std::string(60, 'x') + ".html";
  std::string fitting = "W";
  const QFontMetrics metrics = strip->fontMetrics();
  while (metrics.horizontalAdvance(ToQString(fitting + "W")) <= strip->tabRect(0).width() - 8) {
    fitting += "W";
  }
  tabs.SetTabCaption(0, longName);
  tabs.SetTabCaption(1, fitting);
  EXPECT_EQ(strip->tabToolTip(0).toStdString(), longName);
  EXPECT_EQ(strip->tabToolTip(1), "") << "there is room for it";
  QRect edge = strip->tabRect(1).adjusted(4, 4, 0, -4);
  edge.setWidth(8);
  const QImage image = strip->grab(edge).toImage().convertToFormat(QImage::Format_Grayscale8);
  EXPECT_LT(*std::min_element(image.constBits(), image.constBits() + image.sizeInBytes()), 128)
      << "the text begins beside the edge";
  tabs.SetTabCaption(0, "a.html");
  EXPECT_EQ(strip->tabToolTip(0), "");
}

}  // namespace
}  // namespace tagsmith
