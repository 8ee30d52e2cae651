#include "services/host/SafeWriter.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <random>

#include "services/host/TemporaryFolder.h"
#include "services/host/TestProcess.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;

constexpr uid_t kNobody = 65534;

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
  return status;
}

std::string Attribute(const std::string& path, const char* name) {
  std::string value(200, '\0');
  const ssize_t length = ::getxattr(path.c_str(), name, value.data(), value.size());
  return value.substr(0, length < 0 ? 0 : static_cast<std::size_t>(length));
}

// An access list that lets user 65534 write: version, then tag, permissions and id of each entry.
const std::string kAccessList(
    "\2\0\0\0"
    "\1\0\6\0\xFF\xFF\xFF\xFF"
    "\2\0\6\0\xFE\xFF\0\0"
    "\4\0\4\0\xFF\xFF\xFF\xFF"
    "\x10\0\6\0\xFF\xFF\xFF\xFF"
    "\x20\0\0\0\xFF\xFF\xFF\xFF",
    44);

class SafeWriterTest : public testing::Test {
 protected:
  std::optional<ErrorCode> CodeOfWriting(std::string_view name, std::string_view bytes) {
    return CodeThrownBy([&] { WriteSafely({folder_ / name, {}}, bytes, Durability::kFlushed); });
  }
  void Write(std::string_view name, std::string_view bytes) {
    EXPECT_EQ(CodeOfWriting(name, bytes), std::nullopt);
    EXPECT_EQ(GetFile(folder_ / name), bytes);
  }

  TemporaryFolder folder_;
};

TEST_F(SafeWriterTest, ANewFileHasTheUsualModeAReplacedOneItsOwnWithOwnerAndAttributes) {
  const mode_t usual = ::umask(027);
  Write("new", "text");
  ::umask(usual);
  EXPECT_EQ(StatusOf(folder_ / "new").st_mode & 07777U, 0640U);

  const std::string file = folder_ / "file";
  PutFile(file, "old");
  fs::permissions(file, fs::perms{0604});
  ::setxattr(file.c_str(), "user.tagsmith", "kept", 4, 0);
  const std::string userAttribute = Attribute(file, "user.tagsmith");
  if (::geteuid() == 0) {
    ASSERT_EQ(::chown(file.c_str(), kNobody, kNobody - 1), 0);
  }
  const struct stat before = StatusOf(file);
  Write("file", "the new text");
  const struct stat after = StatusOf(file);
  EXPECT_NE(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(Attribute(file, "user.tagsmith"), userAttribute);
  EXPECT_EQ(NamesIn(folder_.Path()), (Names{"file", "new"}));
}

TEST_F(SafeWriterTest, AccessListsStayAndNoneIsInherited) {
  const char* const own = "system.posix_acl_access";
  PutFile(folder_ / "listed", "old");
  PutFile(folder_ / "plain", "old");
  const auto set = [](const std::string& path, const char* name) {
    return ::setxattr(path.c_str(), name, kAccessList.data(), kAccessList.size(), 0) == 0;
  };
  if (!set(folder_ / "listed", own)) GTEST_SKIP() << "no access lists on this file system";
  ASSERT_TRUE(set(folder_.Path(), "system.posix_acl_default"));
  const mode_t plainMode = StatusOf(folder_ / "plain").st_mode;
  Write("listed", "new");
  Write("plain", "new");
  EXPECT_EQ(Attribute(folder_ / "listed", own), kAccessList);
  EXPECT_EQ(Attribute(folder_ / "plain", own), "");
  EXPECT_EQ(StatusOf(folder_ / "plain").st_mode, plainMode);
}

TEST_F(SafeWriterTest, LinksStayLinks) {
  fs::create_directories(folder_ / "sub");
  PutFile(folder_ / "sub/target", "old");
  fs::create_symlink("sub/target", folder_ / "link");
  fs::create_symlink("link", folder_ / "link-to-link");
  fs::create_symlink("sub/new", folder_ / "dangling");
  fs::create_symlink("loop", folder_ / "loop");
  PutFile(folder_ / "one", "a rather long old text");
  fs::create_hard_link(folder_ / "one", folder_ / "other");
  for (const char* name : {"link-to-link", "dangling", "one", "other"}) {
    Write(name, std::string(100000, 'x') + name);
    Write(name, name);
  }
  EXPECT_TRUE(CodeOfWriting("loop", "x"));
  EXPECT_EQ(GetFile(folder_ / "sub/target"), "link-to-link");
  EXPECT_EQ(GetFile(folder_ / "sub/new"), "dangling");
  EXPECT_EQ(GetFile(folder_ / "one"), "other");
  EXPECT_EQ(NamesIn(folder_ / "sub"), (Names{"new", "target"}));
}

TEST_F(SafeWriterTest, WhatTheUserMayNotWriteIsRefusedAndAnothersFileStaysHis) {
  PutFile(folder_ / "another's", "old");
  fs::permissions(folder_ / "another's", fs::perms{0666});
  const struct stat before = StatusOf(folder_ / "another's");
  const bool possible = InProcess([this] {
    BecomeOrdinaryUser();
    fs::create_directories(folder_ / "locked");
    PutFile(folder_ / "read-only", "old");
    PutFile(folder_ / "locked/file", "old");
    fs::permissions(folder_ / "read-only", fs::perms{0444});
    fs::permissions(folder_ / "locked", fs::perms{0555});
    EXPECT_EQ(CodeOfWriting("read-only", "new"), ErrorCode::kPermissionDenied);
    EXPECT_EQ(GetFile(folder_ / "read-only"), "old");
    EXPECT_EQ(CodeOfWriting("locked/new", "new"), ErrorCode::kPermissionDenied);
    EXPECT_EQ(CodeOfWriting("gone/new", "new"), ErrorCode::kPathNotFound);
    Write("locked/file", "new text");
    Write("another's", "new");
  });
  if (!possible) GTEST_SKIP() << "root cannot be given up";
  fs::permissions(folder_ / "locked", fs::perms::all);
  EXPECT_EQ(StatusOf(folder_ / "another's").st_uid, before.st_uid);
  EXPECT_EQ(NamesIn(folder_.Path()), (Names{"another's", "locked", "read-only"}));
}

class SafeWriterFaults : public SafeWriterTest {
 protected:
  // Neither a file that can be replaced nor one that has to be written in place is harmed.
  void ExpectOldFilesAfter(ErrorCode code) {
    const std::string old(40000, 'o');
    const std::string tooMuch(150000, 'n');
    PutFile(folder_ / "single", old);
    PutFile(folder_ / "double", old);
    fs::create_hard_link(folder_ / "double", folder_ / "second name");
    for (const char* name : {"single", "double", "new"}) {
      EXPECT_EQ(CodeOfWriting(name, tooMuch), code) << name;
    }
    EXPECT_EQ(GetFile(folder_ / "single"), old);
    EXPECT_EQ(GetFile(folder_ / "double"), old);
    EXPECT_EQ(NamesIn(folder_.Path()), (Names{"double", "second name", "single"}));
  }
};

TEST_F(SafeWriterFaults, AFullDiskLeavesTheOldFileAndNothingElse) {
  const bool possible = InProcess([this] {
    MountSmallDisk(folder_.Path(), "160k");
    ExpectOldFilesAfter(ErrorCode::kDiskFull);
    Write("double", "there is room for this");
    EXPECT_EQ(GetFile(folder_ / "second name"), "there is room for this");
  });
  if (!possible) GTEST_SKIP() << "mounting is not allowed";
}

TEST_F(SafeWriterFaults, AFileSizeLimitDoesNotEndTheProgram) {
  InProcess([this] {
    const rlimit limit{100000, 100000};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    ExpectOldFilesAfter(ErrorCode::kOther);
    sigset_t pending;
    ::sigpending(&pending);
    EXPECT_EQ(::sigismember(&pending, SIGXFSZ), 0);
  });
}

TEST_F(SafeWriterFaults, AProgramKilledAtAnyMomentLeavesTheOldOrTheNewFile) {
  const std::string file = folder_ / "file";
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
        WriteSafely({file, {}}, two, Durability::kWritten);
        WriteSafely({file, {}}, one, Durability::kWritten);
      }
    }
    ::usleep(random() % 8000U);
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string found = GetFile(file);
    ASSERT_TRUE(found == one || found == two) << found.size();
    seenTwo = seenTwo || found == two;
    seenCut = seenCut || NamesIn(folder_.Path()).size() > 1;
  }
  EXPECT_TRUE(seenTwo && seenCut);
}

}  // namespace
}  // namespace tagsmith
