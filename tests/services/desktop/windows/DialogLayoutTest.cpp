#include <gtest/gtest.h>

#include <QFont>
#include <QLabel>

#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/MSFlexGrid.h"
#include "services/Ranges.h"
#include "services/TextBox.h"
#include "services/desktop/windows/ShownForm.h"

namespace tagsmith {
namespace {

class Dialog : public ShownForm {
 public:
  explicit Dialog(Screen& screen) : ShownForm(screen) {
    txtLines.SetMultiLine(true);
    cmdInsert.SetCaption("&Insert The Whole Thing");
    cmdCancel.SetCaption("Cancel");
    SetArrangement(Column({
        Grid(2, {lblName(0), txtName(0), lblName(1), txtName(1), lblName(2),
                 Row({shpColor, cmdChange})}),
        Row({Group(fraKind, Column({optKind(0), optKind(1)})), Column({sldRows, cboAlign})}),
        Row({grid, lstNames}),
        txtLines,
        ButtonRow({cmdInsert, cmdCancel}),
    }));
  }

  ControlArray<Label> lblName{*this, "lblName", 3, std::string("A &Rather Long Caption")};
  ControlArray<TextBox> txtName{*this, "txtName", 2};
  Shape shpColor{*this, "shpColor"};
  CommandButton cmdChange{*this, "cmdChange"};
  Frame fraKind{*this, "fraKind", "Choose a Type of List"};
  ControlArray<OptionButton> optKind{*this, "optKind", 2, std::string("Uppercase Letters")};
  Slider sldRows{*this, "sldRows", Orientation::kHorizontal, 1, 25};
  ComboBox cboAlign{*this, "cboAlign", ComboStyle::kDropDownCombo, true};
  MSFlexGrid grid{*this, "grid", 2, 2};
  ListBox lstNames{*this, "lstNames", true};
  TextBox txtLines{*this, "txtLines"};
  CommandButton cmdCancel{*this, "cmdCancel"};
  CommandButton cmdInsert{*this, "cmdInsert"};
};

class DialogLayout : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    QFont font = before;
    font.setPointSize(GetParam());
    QApplication::setFont(font);
    form.emplace(screen);
    form->ShowAndWait();
  }
  void TearDown() override { QApplication::setFont(before); }

  QRect Place(const Control& control) {
    QWidget* widget = form->Widget(control);
    return {widget->mapTo(&form->Window(), QPoint()), widget->size()};
  }

  const QFont before = QApplication::font();
  Screen screen;
  std::optional<Dialog> form;
};

INSTANTIATE_TEST_SUITE_P(Fonts, DialogLayout, testing::Values(9, 14, 20));

TEST_P(DialogLayout, NothingIsCutOrOverlaps) {
  std::vector<std::pair<std::string, QRect>> places;
  for (const Control* control : form->Controls()) {
    QWidget* widget = form->Widget(*control);
    ASSERT_NE(widget, nullptr) << control->Name();
    const QSize least =
        qobject_cast<QLabel*>(widget) != nullptr ? widget->sizeHint() : widget->minimumSizeHint();
    EXPECT_GE(widget->width(), least.width()) << control->Name();
    EXPECT_GE(widget->height(), least.height()) << control->Name();
    if (control != &form->fraKind) places.emplace_back(control->Name(), Place(*control));
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(places[i].second.intersects(places[j].second))
          << places[i].first << " and " << places[j].first;
    }
  }
}

TEST_P(DialogLayout, TabGoesThroughTheLeavesInTheirOrder) {
  Strings order;
  QWidget* first = form->Widget(form->txtName(0));
  first->setFocus();
  QWidget* now = first;
  do {
    order.push_back(now->objectName().toStdString());
    QTest::keyClick(now, Qt::Key_Tab);
    now = QApplication::focusWidget();
  } while (now != first && order.size() < 30);
  EXPECT_EQ(order, (Strings{"txtName_0", "txtName_1", "cmdChange", "optKind_0", "sldRows",
                            "cboAlign", "grid", "lstNames", "txtLines", "cmdInsert", "cmdCancel"}));
}

}  // namespace
}  // namespace tagsmith
