#include "services/host/DesktopRegistry.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

#include "services/host/KeyFile.h"
#include "services/host/StartedProgram.h"
#include "services/host/TestProcess.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;
using namespace std::string_literals;

/// A desktop in a folder: two browsers of the system's, and a user with nothing of his own.
class DesktopRegistryTest : public testing::Test {
 protected:
  DesktopRegistryTest() {
    fs::create_directories(system_);
    for (const char* name : {"browser", "other", "editor"}) {
      PutProgram(folder_ / "bin/" + name, "");
      PutFile(system_ / (name + ".desktop"s),
              "[Desktop Entry]\nType=Application\nName=x\nExec="s + name + " %u\n");
    }
    PutFile(system_ / "mimeinfo.cache",
            "[MIME Cache]\ntext/plain=editor.desktop;\n"
            "text/html=gone.desktop;browser.desktop;other.desktop;\n");
  }
  void SetUp() override {
    if (std::system("command -v gio xdg-mime desktop-file-validate >/dev/null") != 0) GTEST_SKIP();
  }

  void Offer() { DesktopRegistry(places_).OfferFor("text/html", "Edit with Tagsmith"); }

  /// What a tool prints on that desktop.
  std::string Run(const std::string& command) const {
    const std::string line =
        "exec 2>&1; export LC_ALL=C XDG_CURRENT_DESKTOP= HOME=" + folder_.Path() +
        " XDG_DATA_HOME=" + home_ +
        " XDG_DATA_DIRS=" + folder_ / "system XDG_CONFIG_DIRS=/none XDG_CONFIG_HOME=" + config_ +
        " PATH=" + folder_ / "bin:$PATH; " + command;
    std::string output;
    FILE* pipe = ::popen(line.c_str(), "r");
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe)) output += static_cast<char>(c);
    ::pclose(pipe);
    return output;
  }
  /// The default as each of the two tools sees it, and whether the program is offered.
  std::string State() const {
    return Run(
        "gio mime text/html | sed -n '1s/.*: //p'; xdg-mime query default text/html; "
        "gio mime text/html | grep -o 'tagsmith-edit.desktop' | sort -u");
  }
  std::string Pinned() const {
    return std::string(KeyFileValue(GetFile(list_), "Default Applications", "text/html"));
  }

  TemporaryFolder folder_;
  fs::path system_ = folder_ / "system/applications";
  std::string home_ = folder_ / "home/share";
  std::string entry_ = home_ + "/applications/tagsmith-edit.desktop";
  std::string config_ = folder_ / "home/config";
  std::string list_ = config_ + "/mimeapps.list";
  DesktopPlaces places_{
      {home_, folder_ / "system"}, {config_}, {folder_ / "bin"}, {}, folder_ / "bin/editor"};
};

TEST_F(DesktopRegistryTest, IsSeenAtOnceAndNeverBecomesTheDefault) {
  struct Case {
    const char *list, *after, *shown, *older = "";
  };
  for (const Case& row : std::initializer_list<Case>{
           {"", "[Default Applications]\ntext/html=browser.desktop;other.desktop;\n", "browser"},
           // A choice that is there is kept, and so is all else.
           {"# mine\r\n[Default Applications]\ntext/html=other.desktop\n", nullptr, "other"},
           // Chosen but gone.
           {"#c\n[Default Applications]\na/b=c;\ntext/html=gone.desktop;\n\n[X]\ntext/html=y",
            "#c\n[Default Applications]\na/b=c;\n"
            "text/html=browser.desktop;other.desktop;gone.desktop;\n\n[X]\ntext/html=y",
            "browser"},
           // Not all programs go by the same line.
           {"[Default Applications]\ntext/html=gone.desktop\ntext/html=other.desktop",
            "[Default Applications]\n"
            "text/html=other.desktop;gone.desktop;\ntext/html=other.desktop",
            "other"},
           // Chosen in a file of the older kind.
           {"", "[Default Applications]\ntext/html=other.desktop;browser.desktop;\n", "other",
            "[Default Applications]\ntext/html=gone.desktop;other.desktop\n"},
           {"[Removed Associations]\ntext/html=browser.desktop;tagsmith-edit.desktop;\n",
            "[Removed Associations]\ntext/html=browser.desktop;\n\n"
            "[Default Applications]\ntext/html=other.desktop;\n",
            "other"},
       }) {
    SCOPED_TRACE(row.list);
    fs::remove_all(folder_ / "home");
    fs::create_directories(config_);
    PutFile(list_, row.list);
    PutFile(system_ / "defaults.list", row.older);
    const std::string shown = row.shown + ".desktop\n"s;
    Offer();
    const std::string state = shown + shown + "tagsmith-edit.desktop\n";
    EXPECT_EQ(State(), state);
    // A cache made anew by another program says the same.
    EXPECT_EQ(Run("update-desktop-database " + home_ + "/applications"), "");
    EXPECT_EQ(State(), state);
    Offer();
    EXPECT_EQ(GetFile(list_), row.after != nullptr ? row.after : row.list);
  }

  // The user may choose it.
  const std::string chosen = "[Default Applications]\ntext/html=tagsmith-edit.desktop;";
  PutFile(list_, chosen);
  Offer();
  EXPECT_EQ(GetFile(list_), chosen);
}

TEST_F(DesktopRegistryTest, KnowsWhatIsTheDefaultOnThisDesktop) {
  // Text without an application of its own opens in the editor.
  PutFile(system_ / "mimeinfo.cache", "[MIME Cache]\ntext/plain=editor.desktop;\n");
  Offer();
  EXPECT_EQ(Pinned(), "editor.desktop;");

  // The only application there is.
  fs::remove_all(folder_ / "home");
  PutFile(system_ / "mimeinfo.cache", "");
  Offer();
  EXPECT_FALSE(fs::exists(list_));

  // Chosen by the desktop itself.
  places_.desktops = {"ubuntu", "gnome"};
  PutFile(system_ / "gnome-mimeapps.list", "[Default Applications]\ntext/html=other.desktop;\n");
  Offer();
  EXPECT_FALSE(fs::exists(list_));

  // KDE's order, and an entry of the user's that hides the system's.
  places_.desktops = {"kde"};
  PutFile(system_ / "mimeinfo.cache",
          "[MIME Cache]\ntext/html=editor.desktop;browser.desktop;kde-other.desktop;\n");
  PutFile(home_ + "/applications/editor.desktop", "[Desktop Entry]\nHidden=true\n");
  fs::create_directory(system_ / "kde");
  PutFile(system_ / "kde/other.desktop", "[Desktop Entry]\nExec=other\nInitialPreference=9\n");
  Offer();
  EXPECT_EQ(Pinned(), "kde-other.desktop;browser.desktop;");
}

TEST_F(DesktopRegistryTest, StartsTheProgramWithTheFileWhateverTheyAreCalled) {
  const std::string page = folder_ / "page 'b' \"c\" $HOME `d` \\e 50%f & =é;#.html";
  PutFile(page, "");
  for (const char* name : {"plain", "a b'\"c\" $HOME `d` \\e é;#~", "50%f %", "a=b %%"}) {
    SCOPED_TRACE(name);
    places_.program = folder_ / name + "/tagsmith";
    PutProgram(places_.program, "printf '%s|' \"$0\" \"$@\"");
    Offer();
    EXPECT_EQ(Run("desktop-file-validate " + entry_), "");
    EXPECT_TRUE(State().ends_with("tagsmith-edit.desktop\n")) << State();
    // The output ends when the program does.
    EXPECT_EQ(Run("gio launch " + entry_ + ' ' + folder_ / "page*.html"),
              places_.program + '|' + page + '|');

    const std::string menu = home_ + "/kio/servicemenus/tagsmith-edit.desktop";
    EXPECT_EQ(KeyFileValue(GetFile(menu), "Desktop Action edit", "Exec"),
              KeyFileValue(GetFile(entry_), "Desktop Entry", "Exec"));
    EXPECT_NE(fs::status(menu).permissions() & fs::perms::owner_exec, fs::perms::none);
  }
}

TEST_F(DesktopRegistryTest, NamesThePathThatCannotBeWrittenAndOffersNothingThen) {
  const auto failure = [this] { return TextThrownBy([this] { Offer(); }); };
  fs::create_directory(folder_ / "home");
  PutFile(home_, "a file");
  EXPECT_EQ(failure(), home_ + ": Not a directory");
  fs::remove_all(folder_ / "home");

  fs::create_directories(list_);
  EXPECT_EQ(failure().substr(0, list_.size() + 2), list_ + ": ");
  EXPECT_FALSE(fs::exists(entry_));
  fs::remove_all(folder_ / "home");

  fs::create_directory(folder_ / "home");
  InProcess([&] {
    fs::permissions(folder_ / "home", fs::perms::all & ~fs::perms::others_write);
    BecomeOrdinaryUser();
    EXPECT_EQ(failure(), config_ + ": Permission denied");
  });
  InProcess([&] {
    MountSmallDisk(folder_ / "home", "16k");
    std::ofstream(folder_ / "home/full") << std::string(std::size_t{64} << 10U, 'x');
    EXPECT_NE(failure().find(": No space left"), std::string::npos) << failure();
    EXPECT_FALSE(fs::exists(entry_));
  });
}

TEST_F(DesktopRegistryTest, FindsTheFirstToolThatIsInstalled) {
  const auto tool = [this] { return DesktopRegistry(places_).SystemInformationTool(); };
  EXPECT_EQ(tool(), std::nullopt);
  PutFile(folder_ / "bin/hardinfo2", "not a program");
  PutProgram(folder_ / "bin/gnome-control-center", "");
  EXPECT_EQ(tool(), folder_.System("bin/gnome-control-center") + " info");
  PutProgram(folder_ / "bin/hardinfo", "");
  EXPECT_EQ(tool(), folder_.System("bin/hardinfo"));
}

}  // namespace
}  // namespace tagsmith
