// What a run that is killed, or meets a full disk, leaves of real files.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "services/TextSearch.h"
#include "services/host/HostFiles.h"
#include "services/host/TemporaryFolder.h"
#include "services/host/TestProcess.h"
#include "sitetools/DirectoryReplace.h"

namespace tagsmith::sitetools {
namespace {

using namespace test;

constexpr int kFileCount = 200;
constexpr int kWordCount = 3000;

std::string NameOf(int file) { return "page" + std::to_string(file) + ".html"; }

std::string Repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

FileOutcome Replace(const TemporaryFolder& folder, int file, const char* find,
                    const char* replacement) {
  HostFiles files;
  std::string text;
  return ReplaceInOneFile(files, folder.System(NameOf(file)), TextSearch(find), replacement, text);
}

[[noreturn]] void ReplaceForEver(const TemporaryFolder& folder) {
  for (;;) {
    for (int i = 0; i < kFileCount; ++i) Replace(folder, i, "old", "new");
    for (int i = 0; i < kFileCount; ++i) Replace(folder, i, "new", "old");
  }
}

// Whether the file holds one word throughout, and behind that a line break for each run over it.
bool IsWhole(std::string text) {
  while (text.ends_with("\r\n")) text.resize(text.size() - 2);
  static const std::string before = Repeated("old ", kWordCount);
  static const std::string after = Repeated("new ", kWordCount);
  return text == before || text == after;
}

TEST(DirectoryReplaceKilled, LeavesEveryFileOldOrNew) {
  constexpr int kRuns = 100;
  constexpr unsigned int kLongestRun = 60'000;  // Microseconds.
  const TemporaryFolder folder;
  for (int i = 0; i < kFileCount; ++i) PutFile(folder / NameOf(i), Repeated("old ", kWordCount));
  std::random_device random;
  bool seenMixed = false;
  for (int run = 0; run < kRuns; ++run) {
    const pid_t child = ::fork();
    if (child == 0) ReplaceForEver(folder);
    ::usleep(random() % kLongestRun);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    int newCount = 0;
    for (int i = 0; i < kFileCount; ++i) {
      const std::string text = GetFile(folder / NameOf(i));
      ASSERT_TRUE(IsWhole(text)) << NameOf(i) << " has " << text.size() << " bytes";
      newCount += text.starts_with("new") ? 1 : 0;
    }
    seenMixed = seenMixed || (newCount > 0 && newCount < kFileCount);
  }
  EXPECT_TRUE(seenMixed) << "no run was killed on its way";
  for (const std::string& name : NamesIn(folder.Path())) {
    EXPECT_TRUE(name.starts_with("page") || name.starts_with(".tagsmith-")) << name;
  }
}

TEST(DirectoryReplaceFaults, AFullDiskLeavesTheOldFiles) {
  const TemporaryFolder folder;
  const std::string old = Repeated("old ", kWordCount);
  const bool possible = InProcess([&] {
    MountSmallDisk(folder.Path(), "64k");
    for (int i = 0; i < 2; ++i) PutFile(folder / NameOf(i), old);
    EXPECT_EQ(Replace(folder, 0, "old", "ten times as long as the old"), FileOutcome::kNotWritten);
    EXPECT_EQ(Replace(folder, 1, "old", "new"), FileOutcome::kWritten);
    EXPECT_EQ(GetFile(folder / NameOf(0)), old);
    EXPECT_TRUE(GetFile(folder / NameOf(1)).starts_with("new new "));
    EXPECT_EQ(NamesIn(folder.Path()), (Names{NameOf(0), NameOf(1)}));
  });
  if (!possible) GTEST_SKIP() << "mounting is not allowed";
}

}  // namespace
}  // namespace tagsmith::sitetools
