#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "services/host/SafeWriter.h"
#include "services/host/TemporaryFolder.h"
#include "services/host/TestProcess.h"

namespace tagsmith {
namespace {

using namespace test;

const std::string kOld(40000, 'o');
const std::string kTooMuch(150000, 'n');

// A file that can be replaced and one that has to be written in place.
void LayDownFiles(const TemporaryFolder& folder) {
  PutFile(folder / "single", kOld);
  PutFile(folder / "double", kOld);
  std::filesystem::create_hard_link(folder / "double", folder / "second name");
}

void ExpectOldFilesAfter(const TemporaryFolder& folder, ErrorCode code) {
  for (const char* name : {"single", "double", "new"}) {
    EXPECT_EQ(CodeThrownBy([&] { WriteSafely(folder / name, kTooMuch, Durability::kWritten); }),
              code)
        << name;
  }
  EXPECT_EQ(GetFile(folder / "single"), kOld);
  EXPECT_EQ(GetFile(folder / "double"), kOld);
}

TEST(SafeWriterFaults, AFullDiskLeavesTheOldFileAndNothingElse) {
  const TemporaryFolder folder;
  const bool possible = InProcess([&folder] {
    MountSmallDisk(folder.Path(), "160k");
    LayDownFiles(folder);
    ExpectOldFilesAfter(folder, ErrorCode::kDiskFull);
    EXPECT_EQ(NamesIn(folder.Path()), (Names{"double", "second name", "single"}));
    WriteSafely(folder / "double", "there is room for this", Durability::kFlushed);
    EXPECT_EQ(GetFile(folder / "second name"), "there is room for this");
  });
  if (!possible) GTEST_SKIP() << "mounting is not allowed";
}

TEST(SafeWriterFaults, AFileSizeLimitDoesNotEndTheProgram) {
  const TemporaryFolder folder;
  LayDownFiles(folder);
  InProcess([&folder] {
    const rlimit limit{100000, 100000};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    ExpectOldFilesAfter(folder, ErrorCode::kOther);
    sigset_t pending;
    ::sigpending(&pending);
    EXPECT_EQ(::sigismember(&pending, SIGXFSZ), 0);
  });
  EXPECT_EQ(NamesIn(folder.Path()), (Names{"double", "second name", "single"}));
}

TEST(SafeWriterFaults, AProgramKilledAtAnyMomentLeavesTheOldOrTheNewFile) {
  const TemporaryFolder folder;
  const std::string file = folder / "file";
  const std::string one(1000000, '1');
  const std::string two(700000, '2');
  PutFile(file, one);
  std::random_device random;
  bool seenTwo = false;
  bool seenCut = false;
  // At least 50 moments, and more until some were in the middle of a write.
  for (int i = 0; i < 50 || (i < 1000 && !(seenTwo && seenCut)); ++i) {
    const pid_t child = ::fork();
    if (child == 0) {
      for (;;) {
        WriteSafely(file, two, Durability::kWritten);
        WriteSafely(file, one, Durability::kWritten);
      }
    }
    ::usleep(random() % 8000U);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string found = GetFile(file);
    ASSERT_TRUE(found == one || found == two) << found.size();
    seenTwo = seenTwo || found == two;
    seenCut = seenCut || NamesIn(folder.Path()).size() > 1;
  }
  EXPECT_TRUE(seenTwo && seenCut);
}

}  // namespace
}  // namespace tagsmith
