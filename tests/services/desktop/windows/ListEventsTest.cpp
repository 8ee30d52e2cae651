#include <gtest/gtest.h>

#include <QListView>

#include "services/FileBoxes.h"
#include "services/desktop/windows/ShownForm.h"

namespace tagsmith {
namespace {

class Probe : public ProbeForm {
 public:
  explicit Probe(Screen& screen) : ProbeForm(screen) {
    for (const char* name : {"a.html", "b.gif", "c.html", "img\\d.gif"}) {
      screen.desktop.files.AddFile(std::string("c:\\site\\") + name, "");
    }
    MyFileList.SetPath("c:\\site");
    MyDirectory.SetPath("c:\\site");
    MyDirectory.Move({0, 0, 2500, 3000});
    MyFileList.Move({2600, 0, 2500, 3000});

    MyDirectory.onClick = [this] {
      log.push_back("dir " + MyDirectory.List(MyDirectory.ListIndex()));
    };
    MyDirectory.onChange = [this] { log.push_back("in " + MyDirectory.Path()); };
    MyFileList.onClick = [this] { log.push_back("file " + Current()); };
    MyFileList.onDblClick = [this] { log.push_back("open " + Current()); };
    MyFileList.onMouseDown = [this](int) { log.push_back("down on " + Current()); };
    MyFileList.onMouseUp = [this](int) { log.push_back("up"); };
  }

  std::string Current() const { return MyFileList.List(MyFileList.ListIndex()); }

  DirListBox MyDirectory{*this, "MyDirectory"};
  FileListBox MyFileList{*this, "MyFileList"};
};

class ListEvents : public ShownTest<Probe> {
 protected:
  QListView* List(const Control& control) { return form.Widget<QListView>(control); }
  QPoint Row(const Control& control, int row) {
    return List(control)->visualRect(List(control)->model()->index(row, 0)).center();
  }
  void Click(const Control& control, int row) {
    QTest::mouseClick(List(control)->viewport(), Qt::LeftButton, {}, Row(control, row));
  }
  // As the window system tells it: press, release, double click, release.
  void DoubleClick(const Control& control, int row) {
    Click(control, row);
    const QPoint place = Row(control, row);
    QTest::mouseDClick(List(control)->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(List(control)->viewport(), Qt::LeftButton, {}, place);
  }
};

TEST_F(ListEvents, ADirectoryListShowsAncestorsAndOpensOnEnterAndDoubleClick) {
  const auto text = [this](int row) {
    return List(form.MyDirectory)->model()->index(row, 0).data().toString().toStdString();
  };
  EXPECT_EQ((Strings{text(0), text(1), text(2)}), (Strings{"c:\\", "site", "img"}));
  EXPECT_EQ(List(form.MyDirectory)->sizeHintForRow(0), List(form.MyFileList)->sizeHintForRow(0));
  Click(form.MyDirectory, 2);
  QTest::keyClick(List(form.MyDirectory), Qt::Key_Return);
  EXPECT_EQ(form.TakeLog(), (Strings{"dir c:\\site\\img", "in c:\\site\\img"}));
  EXPECT_EQ(List(form.MyDirectory)->currentIndex().row(), 2) << "the open directory";
  DoubleClick(form.MyDirectory, 0);
  EXPECT_EQ(form.TakeLog(), (Strings{"dir c:\\", "in c:\\"}));
}

TEST_F(ListEvents, AFileListSelectsBeforeItTellsTheMouse) {
  QTest::mouseClick(List(form.MyFileList)->viewport(), Qt::LeftButton, {}, QPoint(9, 150));
  EXPECT_EQ(form.MyFileList.ListIndex(), -1) << "below the entries";
  form.TakeLog();
  QTest::keyClick(List(form.MyFileList), Qt::Key_Down);
  EXPECT_EQ(form.TakeLog(), (Strings{"file a.html"})) << "the list is entered at its start";
  form.MyFileList.SetListIndex(-1);
  form.TakeLog();
  DoubleClick(form.MyFileList, 0);
  EXPECT_EQ(form.TakeLog(), (Strings{"file a.html", "down on a.html", "up", "open a.html", "up"}));
  QTest::keyClick(List(form.MyFileList), Qt::Key_Down);
  QTest::keyClick(List(form.MyFileList), Qt::Key_Return);
  EXPECT_EQ(form.TakeLog(), (Strings{"file b.gif", "open b.gif"}));
}

TEST_F(ListEvents, AnAllowedDragLeavesAClickADoubleClickAndTheSelectionAlone) {
  form.MyFileList.onMouseDown = [this](int) { form.MyFileList.Drag(1); };
  form.MyFileList.onMouseUp = [this](int) { form.MyFileList.Drag(2); };
  DoubleClick(form.MyFileList, 1);
  EXPECT_EQ(form.TakeLog(), (Strings{"file b.gif", "open b.gif"}));
  QWidget* viewport = List(form.MyFileList)->viewport();
  const QPoint start = Row(form.MyFileList, 1);
  QTest::mousePress(viewport, Qt::LeftButton, {}, start);
  QTest::mouseEvent(QTest::MouseMove, viewport, Qt::LeftButton, {}, start + QPoint(2, 2));
  QTest::mouseRelease(viewport, Qt::LeftButton, {}, start + QPoint(2, 2));
  EXPECT_EQ(form.TakeLog(), (Strings{"file b.gif"})) << "not far enough for a drag";
  EXPECT_FALSE(form.MyFileList.IsDragging());
}

TEST(ListOfSeveral, ShowsAFullDirectorySelectedToTheUsersNextGesture) {
  constexpr int kCount = 20000;
  Screen screen;
  for (int i = 0; i < kCount; ++i) {
    screen.desktop.files.AddFile("c:\\full\\page" + std::to_string(i), "");
  }
  ProbeForm form(screen);
  auto& files = form.Add<FileListBox>("MyFileList", /*multiSelect=*/true);
  files.Move({0, 0, 2500, 3000});
  files.onClick = form.Log("click");
  files.SetPath("c:\\full");
  form.ShowAndWait();
  auto& list = *form.Widget<QListView>(files);
  const auto selectAll = [&files](bool selected) {
    for (int i = 0; i < kCount; ++i) files.SetSelected(i, selected);
  };
  const auto selectedCount = [&files] {
    int count = 0;
    for (int i = 0; i < kCount; ++i) count += files.Selected(i) ? 1 : 0;
    return count;
  };
  const auto click = [&list](int row, Qt::KeyboardModifiers modifiers) {
    const QPoint place = list.visualRect(list.model()->index(row, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, place);
  };
  const auto shown = [&list] {
    int count = 0;
    for (const auto& range : list.selectionModel()->selection()) count += range.height();
    return count;
  };
  selectAll(true);
  click(2, Qt::ControlModifier);
  EXPECT_EQ(selectedCount(), kCount - 1) << "one taken away from all";
  EXPECT_EQ(shown(), kCount - 1);
  selectAll(false);
  click(1, Qt::ControlModifier);
  EXPECT_EQ(selectedCount(), 1) << "one added to none";
  EXPECT_TRUE(files.Selected(1));
  click(3, Qt::ShiftModifier);
  QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(selectedCount(), 4);
  form.TakeLog();
  for (int i = 0; i < kCount; i += 2) files.SetSelected(i, true);
  EXPECT_EQ(form.TakeLog(), Strings());
  EXPECT_EQ(shown(), kCount / 2 + 2);
}

}  // namespace
}  // namespace tagsmith
