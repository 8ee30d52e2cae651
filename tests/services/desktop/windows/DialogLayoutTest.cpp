#include <gtest/gtest.h>

#include <QFont>
#include <QLabel>

#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/MSFlexGrid.h"
#include "services/Menu.h"
#include "services/Ranges.h"
#include "services/TextBox.h"
#include "services/desktop/windows/ShownForm.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

class Dialog : public ShownForm {
 public:
  explicit Dialog(Screen& screen) : ShownForm(screen) {
    txtLines.SetMultiLine(true);
    cmdInsert.SetCaption("&Insert The Whole Thing");
    cmdCancel.SetCaption("Cancel");
    lblPlace.SetWidth(2000);
    txtName(0).SetFontName("Courier");
    picSketch.Move({0, 0, 1455, 1455});
    lblSketch.SetContainer(picSketch);
    lblSketch.Move({150, 300, 600, 240});
    linSketch.SetContainer(picSketch);
    linSketch.Move({1005, 150, 0, 900});
    SetArrangement(Column({
        Grid(2, {lblName(0), txtName(0), lblName(1), txtName(1), lblName(2),
                 Row({shpColor, cmdChange})}),
        Row({Group(fraKind, Column({optKind(0), optKind(1)})), linUpright,
             Column({sldRows, cboAlign, lblPlace})}),
        Row({grid, picSketch, lstNames}),
        linLevel,
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
  Line linUpright{*this, "linUpright"};
  Line linLevel{*this, "linLevel"};
  Label lblPlace{*this, "lblPlace", "(1, 1)"};
  PictureBox picSketch{*this, "picSketch"};
  Label lblSketch{*this, "lblSketch", "Top left"};
  Line linSketch{*this, "linSketch"};
  Menu mnuHelp{*this, "mnuHelp", "&Help"};
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
    if (control->Kind() == ControlKind::kMenu || control->Container() != nullptr) continue;
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

TEST_P(DialogLayout, SizesInTwipsDividersAndPicturesComeOutAsTheyAre) {
  const TwipsScale scale = TwipsScale::ForFont(QApplication::font());
  EXPECT_EQ(form->Widget(form->lblPlace)->minimumWidth(), scale.ToPixels(2000));
  EXPECT_EQ(Place(form->linUpright).size(), QSize(1, Place(form->fraKind).height()));
  EXPECT_EQ(Place(form->linLevel).size(), QSize(Place(form->txtLines).width(), 1));
  EXPECT_EQ(Place(form->picSketch).size(), scale.ToPixels(1455, 1455));
  EXPECT_EQ(form->Widget(form->lblSketch)->geometry(), scale.ToPixels({150, 300, 600, 240}));
  EXPECT_EQ(form->Widget(form->linSketch)->geometry().size(), QSize(1, scale.ToPixels(900) + 1));
  const QFont font = form->Widget(form->txtName(0))->font();
  EXPECT_EQ(font.family(), "Courier");
  EXPECT_EQ(font.pointSize(), GetParam());
  const QWidget* button = form->Widget(form->cmdInsert);
  EXPECT_TRUE(button->parentWidget()->rect().contains(button->geometry())) << "below a menu bar";
}

TEST(SmallField, IsAsLargeAsItsTwipsSay) {
  Screen screen;
  ShownForm form(screen);
  auto& field = form.Add<TextBox>("field");
  field.SetMultiLine(true);
  field.Move({0, 0, 2100, 600});
  form.SetArrangement(Grid(1, {field}));
  form.ShowAndWait();
  const TwipsScale scale = TwipsScale::ForFont(QApplication::font());
  EXPECT_EQ(form.Widget(field)->size(), scale.ToPixels(2100, 600));
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
