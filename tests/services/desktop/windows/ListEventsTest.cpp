#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QListView>

#include "services/FileBoxes.h"
#include "services/Lists.h"
#include "services/desktop/windows/ShownForm.h"

namespace tagsmith {
namespace {

struct Folders : Screen {
  Folders() {
    desktop.files.AddDirectory("c:\\site\\img");
    desktop.files.AddDirectory("c:\\site\\text");
    for (const char* name : {"a.html", "b.gif", "c.html"}) {
      desktop.files.AddFile(std::string("c:\\site\\") + name, "");
    }
    desktop.files.AddFile("c:\\site\\img\\d.gif", "");
  }
};

class Probe : public ShownForm {
 public:
  explicit Probe(Screen& screen) : ShownForm(screen) {
    SetBorder(BorderStyle::kSizable);
    SetWidth(10500);
    SetHeight(9000);
    lstWords.Move({0, 0, 2500, 3000});
    MyDirectory.Move({2600, 0, 2500, 3000});
    MyFileList.Move({5200, 0, 2500, 3000});
    lstMany.Move({7800, 0, 2500, 3000});
    lstWords.AddItems({"ant", "bee", "cow"});
    MyDirectory.SetPath("c:\\site");
    MyFileList.SetPath("c:\\site");
    lstMany.SetPath("c:\\site");

    lstWords.onClick = [this] { log.push_back("word " + lstWords.Text()); };
    lstWords.onDblClick = [this] { log.push_back("open " + lstWords.Text()); };
    MyDirectory.onClick = [this] {
      log.push_back("dir " + MyDirectory.List(MyDirectory.ListIndex()));
    };
    MyDirectory.onChange = [this] { log.push_back("in " + MyDirectory.Path()); };
    MyFileList.onClick = [this] { log.push_back("file " + Current()); };
    MyFileList.onDblClick = [this] { log.push_back("open " + Current()); };
    MyFileList.onMouseDown = [this](int) { log.push_back("down on " + Current()); };
    MyFileList.onMouseUp = [this](int) { log.push_back("up"); };
    lstMany.onClick = [this] { log.push_back("files " + Selected()); };
  }

  std::string Current() const { return MyFileList.List(MyFileList.ListIndex()); }
  std::string Selected() const {
    std::string names;
    for (int i = 0; i < lstMany.ListCount(); ++i) {
      if (lstMany.Selected(i)) names += lstMany.List(i);
    }
    return names;
  }

  ListBox lstWords{*this, "lstWords", false};
  DirListBox MyDirectory{*this, "MyDirectory"};
  FileListBox MyFileList{*this, "MyFileList"};
  FileListBox lstMany{*this, "lstMany", /*multiSelect=*/true};
};

class ListEvents : public testing::Test {
 protected:
  void SetUp() override {
    form.ShowAndWait();
    form.TakeLog();
  }

  QListView* List(const Control& control) { return form.Widget<QListView>(control); }
  QPoint Row(const Control& control, int row) {
    return List(control)->visualRect(List(control)->model()->index(row, 0)).center();
  }
  void Click(const Control& control, int row, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseClick(List(control)->viewport(), Qt::LeftButton, keys, Row(control, row));
  }
  // As the window system tells it: press, release, double click, release.
  void DoubleClick(const Control& control, int row) {
    Click(control, row);
    const QPoint place = Row(control, row);
    QTest::mouseDClick(List(control)->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(List(control)->viewport(), Qt::LeftButton, {}, place);
  }

  Folders screen;
  Probe form{screen};
};

TEST_F(ListEvents, AListBoxTellsEachChoiceOnce) {
  Click(form.lstWords, 1);
  Click(form.lstWords, 1);
  QTest::keyClick(List(form.lstWords), Qt::Key_Down);
  EXPECT_EQ(form.TakeLog(), (Strings{"word bee", "word bee", "word cow"}));
  form.lstWords.SetListIndex(0);
  EXPECT_EQ(List(form.lstWords)->currentIndex().row(), 0);
  EXPECT_EQ(form.TakeLog(), (Strings{"word ant"}));
  QTest::mouseClick(List(form.lstWords)->viewport(), Qt::LeftButton, {}, QPoint(9, 150));
  EXPECT_EQ(form.TakeLog(), Strings()) << "below the entries";
  EXPECT_TRUE(List(form.lstWords)->selectionModel()->isRowSelected(0));
}

TEST_F(ListEvents, ADirectoryListShowsAncestorsAndOpensOnEnterAndDoubleClick) {
  const auto text = [this](int row) {
    return List(form.MyDirectory)->model()->index(row, 0).data().toString().toStdString();
  };
  EXPECT_EQ((Strings{text(0), text(1), text(2), text(3)}),
            (Strings{"c:\\", "site", "img", "text"}));
  Click(form.MyDirectory, 2);
  QTest::keyClick(List(form.MyDirectory), Qt::Key_Return);
  EXPECT_EQ(form.TakeLog(), (Strings{"dir c:\\site\\img", "in c:\\site\\img"}));
  EXPECT_EQ(List(form.MyDirectory)->currentIndex().row(), 2) << "the open directory";
  DoubleClick(form.MyDirectory, 0);
  EXPECT_EQ(form.TakeLog(), (Strings{"dir c:\\", "in c:\\"}));
}

TEST_F(ListEvents, AFileListSelectsBeforeItTellsTheMouse) {
  DoubleClick(form.MyFileList, 0);
  EXPECT_EQ(form.TakeLog(), (Strings{"file a.html", "down on a.html", "up", "open a.html", "up"}));
  QTest::keyClick(List(form.MyFileList), Qt::Key_Down);
  QTest::keyClick(List(form.MyFileList), Qt::Key_Return);
  EXPECT_EQ(form.TakeLog(), (Strings{"file b.gif", "open b.gif"}));
}

TEST_F(ListEvents, SeveralFilesAreSelectedAsOneEvent) {
  Click(form.lstMany, 0);
  Click(form.lstMany, 2, Qt::ShiftModifier);
  Click(form.lstMany, 1, Qt::ControlModifier);
  EXPECT_EQ(form.TakeLog(),
            (Strings{"files a.html", "files a.htmlb.gifc.html", "files a.htmlc.html"}));
  form.lstMany.SetSelected(0, false);
  EXPECT_EQ(List(form.lstMany)->selectionModel()->selectedIndexes().size(), 1);
  form.lstMany.SetPath("c:\\site\\img");
  EXPECT_EQ(List(form.lstMany)->model()->rowCount(), 1);
  EXPECT_EQ(form.TakeLog(), Strings());
}

TEST_F(ListEvents, AnAllowedDragLeavesAClickADoubleClickAndTheSelectionAlone) {
  form.MyFileList.onMouseDown = [this](int) { form.MyFileList.Drag(1); };
  form.MyFileList.onMouseUp = [this](int) { form.MyFileList.Drag(2); };
  DoubleClick(form.MyFileList, 1);
  EXPECT_EQ(form.TakeLog(), (Strings{"file b.gif", "open b.gif"}));
  EXPECT_FALSE(form.MyFileList.IsDragging());
  QWidget* viewport = List(form.MyFileList)->viewport();
  const QPoint start = Row(form.MyFileList, 1);
  QTest::mousePress(viewport, Qt::LeftButton, {}, start);
  QTest::mouseEvent(QTest::MouseMove, viewport, Qt::LeftButton, {}, start + QPoint(2, 2));
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, start + QPoint(2, 2));
  EXPECT_EQ(form.TakeLog(), (Strings{"file b.gif"})) << "not far enough for a drag";
  EXPECT_FALSE(form.MyFileList.IsDragging());
}

TEST(FileList, TwentyThousandNames) {
  Folders screen;
  screen.desktop.files.AddDirectory("c:\\many");
  for (int i = 0; i < 20000; ++i) {
    screen.desktop.files.AddFile("c:\\many\\file" + std::to_string(i), "");
  }
  Probe form(screen);
  form.ShowAndWait();
  QElapsedTimer clock;
  clock.start();
  form.MyFileList.SetPath("c:\\many");
  form.Window().repaint();
  RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
  auto* list = form.Widget<QListView>(form.MyFileList);
  ASSERT_EQ(list->model()->rowCount(), 20000);
  QTest::keyClick(list, Qt::Key_Home);
  QTest::keyClick(list, Qt::Key_End);
  EXPECT_EQ(form.MyFileList.ListIndex(), 19999);
}

}  // namespace
}  // namespace tagsmith
