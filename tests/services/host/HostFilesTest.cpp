#include "services/host/HostFiles.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "services/host/TemporaryFolder.h"
#include "services/host/TestProcess.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;

class HostFilesTest : public testing::Test {
 protected:
  TemporaryFolder folder_;
  HostFiles files_;
};

TEST_F(HostFilesTest, LooksUpTheExactNameFirstThenAnotherCase) {
  fs::create_directories(folder_ / "Dir/Été");
  PutFile(folder_ / "Dir/Été/Page.HTML", "other case");
  PutFile(folder_ / "Dir/Été/exact.html", "exact");
  PutFile(folder_ / "Dir/Été/EXACT.html", "not this one");
  EXPECT_EQ(files_.ReadFile(folder_.System("dir/éTÉ/page.html"), 100), "other case");
  EXPECT_EQ(files_.ReadFile(folder_.System("DIR/été/exact.html"), 100), "exact");

  files_.WriteFile(folder_.System("dir/été/PAGE.html"), "new", Durability::kWritten);
  files_.WriteFile(folder_.System("dir/Fresh.html"), "new", Durability::kWritten);
  EXPECT_EQ(GetFile(folder_ / "Dir/Été/Page.HTML"), "new");
  EXPECT_EQ(NamesIn(folder_ / "Dir"), (Names{"Fresh.html", "Été"}));
}

TEST_F(HostFilesTest, ResolvesDirectoriesToTheirFullPath) {
  fs::create_directories(folder_ / "Www/sub");
  fs::create_directory_symlink("Www/sub", folder_ / "link");
  const HostFiles files([this] { return std::vector{folder_ / "Www", std::string("/mnt/none")}; });
  const std::string base = folder_.System("Www");
  EXPECT_EQ(files.ResolveDirectory("..\\www\\.\\sub", base + "\\"), base + "\\sub");
  EXPECT_EQ(files.ResolveDirectory(base.substr(2) + "\\", "c:\\"), base);
  EXPECT_EQ(files.ResolveDirectory(folder_.System("link"), base), folder_.System("link"));
  EXPECT_EQ(files.ResolveDirectory("..", folder_.System("link")), base);
  EXPECT_EQ(files.ResolveDirectory("c:\\..", base), "c:\\");

  const auto codeFor = [&](std::string_view path) {
    return CodeThrownBy([&] { files.ResolveDirectory(path, base); });
  };
  EXPECT_EQ(codeFor("missing"), ErrorCode::kPathNotFound);
  EXPECT_EQ(codeFor("q:\\x"), ErrorCode::kDeviceUnavailable);
}

TEST_F(HostFilesTest, ListsWhatLinksPointToAndNothingHidden) {
  fs::create_directories(folder_ / "dir");
  fs::create_directories(folder_ / ".hidden-dir");
  fs::create_directory_symlink("dir", folder_ / "link-to-dir");
  fs::create_symlink("nowhere", folder_ / "dangling");
  for (const char* name : {"a\\b:c", ".hidden", "\xFFraw", "file"}) PutFile(folder_ / name, "x");
  const std::vector<std::string> directories = files_.DirectoryNames(folder_.System(""));
  EXPECT_EQ(Names(directories.begin(), directories.end()), (Names{"dir", "link-to-dir"}));
  const std::vector<std::string> names = files_.FileNames(folder_.System(""));
  EXPECT_EQ(Names(names.begin(), names.end()),
            (Names{"a\uF05Cb\uF03Ac", "dangling", "file", "\uF87Fraw"}));
  for (const std::string& name : names) {
    EXPECT_EQ(files_.FileExists(folder_.System("") + name), name != "dangling") << name;
  }
  EXPECT_FALSE(files_.FileExists(folder_.System("dir")));
  EXPECT_FALSE(files_.FileExists(folder_.System("file/")));
  EXPECT_FALSE(files_.FileExists(folder_.System("file") + std::string("\0.html", 6)));
}

TEST_F(HostFilesTest, ReadsEveryByteBelowTheLimitAlone) {
  const std::string bytes("a\0\r\n\xFF ten!!", 11);
  PutFile(folder_ / "file", bytes);
  EXPECT_EQ(files_.ReadFile(folder_.System("file"), 12), bytes);
  EXPECT_EQ(files_.ReadFile(folder_.System("file"), 11), std::nullopt);
  // Has more bytes than the 0 that it claims, as a file has that grows while it is read.
  EXPECT_EQ(files_.ReadFile("c:\\proc\\version", 1000000), GetFile("/proc/version"));
  EXPECT_EQ(files_.ReadFile("c:\\proc\\version", 16), std::nullopt);
}

TEST_F(HostFilesTest, NeitherReadsNorReplacesWhatIsNoRegularFile) {
  InProcess([this] {
    ::mkfifo((folder_ / "pipe").c_str(), 0666);
    fs::create_symlink("pipe", folder_ / "link");
    fs::create_directory(folder_ / "dir");
    for (const char* name : {"pipe", "link", "dir"}) {
      const std::string path = folder_.System(name);
      const auto read = CodeThrownBy([&] { files_.ReadFile(path, 100); });
      const auto write = CodeThrownBy([&] { files_.WriteFile(path, "x", Durability::kWritten); });
      EXPECT_EQ(read, ErrorCode::kNotARegularFile) << path;
      EXPECT_EQ(write, ErrorCode::kNotARegularFile) << path;
    }
  });
  EXPECT_EQ(NamesIn(folder_.Path()), (Names{"dir", "link", "pipe"}));
}

TEST_F(HostFilesTest, RenamesTheEntryItselfAndNeverOverAnother) {
  PutFile(folder_ / "Index.HTML", "index");
  PutFile(folder_ / "taken", "taken");
  fs::create_symlink("taken", folder_ / "Link");
  fs::create_hard_link(folder_ / "taken", folder_ / "TAKEN");
  const auto rename = [this](const char* from, const char* to) {
    const std::vector<NewName> names = {{from, to}};
    return CodeThrownBy([&] { files_.RenameEntries(folder_.System(""), names); });
  };
  const std::vector<NewName> names = {
      {"Index.HTML", "index.html"}, {"Link", "link"}, {"index.html", "taken"}, {"TAKEN", "taken"}};
  EXPECT_EQ(files_.RenameEntries(folder_.System(""), names),
            (std::vector<std::string>{"index.html", "TAKEN"}));
  EXPECT_EQ(rename("gone", "x"), ErrorCode::kFileNotFound);
  for (const char* path : {"", ".", "..", "../x", "..\\x", "a/"}) {
    EXPECT_TRUE(rename("taken", path) && rename(path, "x")) << path;
  }
  EXPECT_EQ(NamesIn(folder_.Path()), (Names{"TAKEN", "index.html", "link", "taken"}));
  EXPECT_EQ(GetFile(folder_ / "link"), "taken");
}

TEST_F(HostFilesTest, ShowsAMountedVolumeAsADriveAndOpensIt) {
  const bool possible = InProcess([this] {
    MountSmallDisk("/mnt", "100k");
    PutFile("/mnt/a.html", "on the stick");
    std::string letter;
    for (const Drive& drive : files_.Drives()) {
      if (drive.root == "c:\\mnt") letter = drive.letter;
    }
    ASSERT_FALSE(letter.empty());
    EXPECT_EQ(files_.ResolveDirectory(letter + ":", "c:\\"), "c:\\mnt");
    EXPECT_EQ(files_.ReadFile(letter + ":\\A.HTML", 100), "on the stick");
  });
  if (!possible) GTEST_SKIP() << "mounting is not allowed";
}

}  // namespace
}  // namespace tagsmith
