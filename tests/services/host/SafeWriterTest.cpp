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
  void Write(std::string_view name, std::string_view bytes) {
    WriteSafely({folder_ / name, {}}, bytes, Durability::kFlushed);
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
  EXPECT_TRUE(CodeThrownBy([&] {
    WriteSafely({folder_ / "loop", {}}, "x", Durability::kWritten);
  }));
  EXPECT_EQ(GetFile(folder_ / "sub/target"), "link-to-link");
  EXPECT_EQ(GetFile(folder_ / "sub/new"), "dangling");
  EXPECT_EQ(GetFile(folder_ / "one"), "other");
  EXPECT_EQ(NamesIn(folder_ / "sub"), (Names{"new", "target"}));
}

TEST_F(SafeWriterTest, WhatTheUserMayNotWriteIsRefusedAndAnothersFileStaysHis) {
  PutFile(folder_ / "another's", "old");
  fs::permissions(folder_ / "another's", fs::perms{0666});
  const struct stat before = StatusOf(folder_ / "another's");
  const bool isRoot = ::geteuid() == 0;
  const bool possible = InProcess([this] {
    BecomeOrdinaryUser();
    fs::create_directories(folder_ / "locked");
    PutFile(folder_ / "read-only", "old");
    PutFile(folder_ / "locked/file", "old");
    fs::permissions(folder_ / "read-only", fs::perms{0444});
    fs::permissions(folder_ / "locked", fs::perms{0555});
    const auto codeFor = [this](const char* name) {
      return CodeThrownBy([&] {
        WriteSafely({folder_ / name, {}}, "new text", Durability::kFlushed);
      });
    };
    EXPECT_EQ(codeFor("read-only"), ErrorCode::kPermissionDenied);
    EXPECT_EQ(GetFile(folder_ / "read-only"), "old");
    EXPECT_EQ(codeFor("locked/new"), ErrorCode::kPermissionDenied);
    EXPECT_EQ(codeFor("gone/new"), ErrorCode::kPathNotFound);
    EXPECT_EQ(codeFor("locked/file"), std::nullopt);
    EXPECT_EQ(GetFile(folder_ / "locked/file"), "new text");
    Write("another's", "new");
  });
  if (!possible) GTEST_SKIP() << "root cannot be given up";
  fs::permissions(folder_ / "locked", fs::perms::all);
  EXPECT_EQ(StatusOf(folder_ / "another's").st_uid, before.st_uid);
  if (isRoot) {
    EXPECT_EQ(StatusOf(folder_ / "another's").st_ino, before.st_ino);
  }
  EXPECT_EQ(NamesIn(folder_.Path()), (Names{"another's", "locked", "read-only"}));
}

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
    EXPECT_EQ(CodeThrownBy([&] {
                WriteSafely({folder / name, {}}, kTooMuch, Durability::kWritten);
              }),
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
    WriteSafely({folder / "double", {}}, "there is room for this", Durability::kFlushed);
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
    seenCut = seenCut || NamesIn(folder.Path()).size() > 1;
  }
  EXPECT_TRUE(seenTwo && seenCut);
}

}  // namespace
}  // namespace tagsmith
