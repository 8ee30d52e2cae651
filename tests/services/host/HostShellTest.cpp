#include "services/host/HostShell.h"

#include <csignal>

#include "services/host/HostFiles.h"
#include "services/host/StartedProgram.h"
#include "services/host/TestProcess.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;
using namespace std::string_literals;

// Tells the program's own name and its arguments.
constexpr const char* kTell =
    "{ printf '%s' \"${0##*/}\"; for a; do printf '<%s>' \"$a\"; done; } >\"$here/report\"";

class HostShellTest : public testing::Test {
 protected:
  void Start(const std::string& program, const std::string& rest) {
    shell_.Start(folder_.System(program) + rest);
  }
  std::string Told(const std::string& program, const std::string& rest) {
    Start(program, rest);
    return report_.Read();
  }
  std::string Failure(const std::string& program, const std::string& rest = {}) {
    return TextThrownBy([&] { Start(program, rest); });
  }

  TemporaryFolder folder_;
  Report report_{folder_};
  HostFiles files_;
  HostShell shell_{files_};
};

TEST_F(HostShellTest, GivesAFileOfAnyNameAsOneArgument) {
  PutProgram(folder_ / "browser", kTell);
  const std::string pages = folder_ / "my  pages $HOME";
  fs::create_directory(pages);
  for (const char* name :
       {"Page.html", "two  blanks and one behind ", "it's \"quoted\".html", "a;exit 1;b&c|d>e<f",
        "$(kill $$)`kill $$`${HOME}", "100%25%s#x?y.html", "back\\slash\\\\.html",
        "c:\\colon:.html", "ÄÖ€漢 \u202E.html", "no\xFFUTF\xE4-8.html", "\xEF\x81\x9C stand-in",
        "*?[a]~.html", "line\nbreak\t", "-c"}) {
    const std::string path = std::string(pages).append("/").append(name);
    PutFile(path, "");
    EXPECT_EQ(Told("browser", " " + DriveMap::ToSystemPath(path)), "browser<" + path + ">");
  }
  EXPECT_EQ(Told("BROWSER", " " + folder_.System("MY  PAGES $home/PAGE.html")),
            "browser<" + pages + "/Page.html>");
  EXPECT_FALSE(HasChildren());
}

TEST_F(HostShellTest, GivesWhatIsNoFileAsItStands) {
  PutProgram(folder_ / "browser", kTell);
  for (const std::string& text :
       {"http://localhost/a b/sub\\p%20ä.html"s, " -x  --y "s, "sub\\page.html"s,
        folder_.System("gone.html"), folder_.System(""), "q:\\x.html"s, folder_ / "browser"}) {
    EXPECT_EQ(Told("browser", " " + text), "browser<" + text + ">");
  }
  EXPECT_EQ(Told("browser", ""), "browser");
  EXPECT_EQ(Told("browser", " "), "browser");
}

TEST_F(HostShellTest, TakesTheLongestPieceThatNamesAFile) {
  for (const char* name : {"web", "web view", "web view é"}) PutProgram(folder_ / name, kTell);
  fs::create_directory(folder_ / "web view é page");
  EXPECT_EQ(Told("web", " x"), "web<x>");
  EXPECT_EQ(Told("web", " view"), "web view");
  EXPECT_EQ(Told("WEB", " View x"), "web view<x>");
  EXPECT_EQ(Told("web", " view é page"), "web view é<page>");
  EXPECT_EQ(Told("web", "  view"), "web< view>");
}

TEST_F(HostShellTest, SaysWhyAProgramDoesNotStart) {
  for (const char* name : {"locked", "text", "orphan"}) PutProgram(folder_ / name, kTell);
  fs::permissions(folder_ / "locked", fs::perms::owner_read);
  PutFile(folder_ / "text", "echo this is no program >report");
  PutFile(folder_ / "orphan", "#!" + folder_ / "none");
  fs::create_directory(folder_ / "my folder");
  const std::string folder = folder_.System("");
  EXPECT_EQ(Failure("locked", " x"), folder + "locked: Permission denied");
  EXPECT_EQ(Failure("text", " x"), folder + "text: Exec format error");
  EXPECT_EQ(Failure("orphan", " x"), folder + "orphan: bad interpreter: No such file or directory");
  EXPECT_EQ(Failure("my folder", " x"), folder + "my folder: Is a directory");
  EXPECT_EQ(Failure("gone", " x"), folder + "gone x: No such file or directory");
  EXPECT_EQ(Failure("text", " " + std::string(200000, 'x')),
            folder + "text: Argument list too long");
  for (const std::string& line : {""s, " "s, "q:\\browser x"s, folder_.System("text") + " a\0b"s}) {
    EXPECT_TRUE(CodeThrownBy([&] { shell_.Start(line); })) << line;
  }
  EXPECT_FALSE(HasChildren());
}

TEST_F(HostShellTest, LeavesTheProgramToItself) {
  PutProgram(folder_ / "browser",
             "{ echo $(pwd) $PROBE $(readlink /proc/$$/fd/0)\n"
             "  [ -e /proc/$$/fd/57 ] && echo inherits\n"
             "  [ \"$(cut -d' ' -f6 /proc/$$/stat)\" = $$ ] && echo leads its session\n"
             "  sh -c 'kill -PIPE $$; echo deaf'; } >\"$here/report\"");
  PutFile(folder_ / "text", "");
  EXPECT_TRUE(InProcess([&] {
    ::setenv("HOME", folder_.Path().c_str(), 1);
    ::setenv("PROBE", "as before", 1);
    for (const int ignored : {SIGPIPE, SIGCHLD}) std::signal(ignored, SIG_IGN);
    EXPECT_EQ(Failure("text"), folder_.System("text") + ": Permission denied");
    ::dup2(STDOUT_FILENO, 57);
    EXPECT_EQ(Told("browser", " x"), folder_.Path() + " as before /dev/null\nleads its session\n");
    ::setenv("HOME", (folder_ / "gone").c_str(), 1);
    EXPECT_TRUE(Told("browser", " x").starts_with("/ as before"));
    EXPECT_FALSE(HasChildren());
  }));
}

}  // namespace
}  // namespace tagsmith
