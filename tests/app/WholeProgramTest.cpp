// The program put together, from its command tail to the bytes on the disk.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "Program.h"

namespace tagsmith {
namespace {

// Answers the message boxes that come up while it lives by their default button, and keeps what
// they said.
class MessageBoxes {
 public:
  MessageBoxes() {
    QObject::connect(&timer_, &QTimer::timeout, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      texts_.push_back(box->text().toStdString());
      box->accept();
    });
    timer_.start(20);
  }

  const std::vector<std::string>& Texts() const { return texts_; }

 private:
  QTimer timer_;
  std::vector<std::string> texts_;
};

TEST(WholeProgram, FindsEverythingAgainAfterARestart) {
  const UserFolder user;
  WriteBytes(user / "page one.html",
             "<P>Stra\xC3\x9F"
             "e</P>\n");
  {
    Program program(user, {(user / "page").string(), "one.html"});
    frmMain& form = program.Form();
    EXPECT_EQ(form.DocumentName(), user.SystemPath("page one.html"));
    form.txtEdit.SetSelStart(0);
    form.Get<CommandButton>("cmdBold").Click();
    form.cmdSave.Click();
    form.MyDirectory.SetPath(user.SystemPath(""));
    EXPECT_TRUE(form.Unload());
  }
  EXPECT_EQ(ReadBytes(user / "page one.html"),
            "<B></B><P>Stra\xC3\x9F"
            "e</P>\n\r\n");

  Program again(user);
  EXPECT_EQ(again.Form().mnuRecentlyUsed(0).Caption(), user.SystemPath("page one.html"));
  EXPECT_EQ(again.Form().MyDirectory.Path() + "\\", user.SystemPath(""));
  EXPECT_EQ(again.Form().DocumentName(), "Untitled.html");
  EXPECT_EQ(again.Form().txtEdit.SelStart(), 30U);
  EXPECT_EQ(again.Form().txtEdit.TextRange(23, 15), "<TITLE></TITLE>");
}

TEST(WholeProgram, RefusesWhatIsNoDocument) {
  const UserFolder user;
  WriteBytes(user / "large.html", std::string(1'000'000, 'x'));
  ASSERT_EQ(mkfifo((user / "pipe").c_str(), 0600), 0);
  const std::vector<std::pair<std::string, std::string>> cases = {
      {(user / "large.html").string(), "The File Is Too Large For Tagsmith"},
      {(user / "pipe").string(), "Error Loading Text"},
      {"/dev/zero", "Error Loading Text"},
  };
  for (const auto& [argument, message] : cases) {
    const MessageBoxes boxes;
    Program program(user, {argument});
    ASSERT_EQ(boxes.Texts().size(), 1U) << argument;
    EXPECT_EQ(boxes.Texts().front(), message) << argument;
    EXPECT_EQ(program.Form().DocumentName(), "Untitled.html") << argument;
    EXPECT_FALSE(program.Form().DocumentChanged()) << argument;
  }
  for (const char* nothing : {"/", "/no/such/page.html", "\"quoted\"", "-style"}) {
    Program program(user, {nothing});
    EXPECT_EQ(program.Form().DocumentName(), "Untitled.html") << nothing;
  }
}

TEST(WholeProgram, APictureOpensAsBytesAndSavesBackUnharmed) {
  const UserFolder user;
  std::string bytes = "\x89PNG\r\n\x1A\n";
  for (int i = 0; i < 4096; ++i) bytes += static_cast<char>((i * 151) & 0xFF);
  WriteBytes(user / "picture.png", bytes);
  Program program(user, {(user / "picture.png").string()});
  program.Form().mnuFileSave.Click();
  EXPECT_EQ(ReadBytes(user / "picture.png"), bytes + "\r\n");
}

TEST(WholeProgram, DamagedSettingsAndAStoredFolderThatHasGone) {
  const UserFolder user;
  WriteBytes(user / "settings.json", R"({"Tagsmith":{"Settings":{"Dir":"c:\\no such folder"}}})");
  {
    Program program(user);
    EXPECT_EQ(program.Form().MyDirectory.Path(), "c:\\");
    EXPECT_TRUE(program.Form().Unload());
  }
  WriteBytes(user / "settings.json", "{ torn");
  Program program(user);
  EXPECT_EQ(program.App().gBlockCommentSymbol, "//");
  EXPECT_TRUE(program.Form().Unload());
  EXPECT_EQ(ReadBytes(user / "settings.json.damaged"), "{ torn");
}

}  // namespace
}  // namespace tagsmith
