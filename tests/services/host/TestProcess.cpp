#include "services/host/TestProcess.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <fstream>

namespace tagsmith::test {
namespace {

constexpr int kNotPossibleStatus = 77;
constexpr unsigned int kNobody = 65534;

void RequirePossible(bool possible) {
  if (!possible) ::_exit(kNotPossibleStatus);
}

[[noreturn]] void RunAndExit(const std::function<void()>& body) {
  ::alarm(30);
  try {
    body();
  } catch (const std::exception& error) {
    ADD_FAILURE() << "thrown: " << error.what();
  }
  std::fflush(stdout);
  ::_exit(testing::Test::HasFailure() ? 1 : 0);
}

}  // namespace

bool InProcess(const std::function<void()>& body) {
  std::fflush(stdout);
  const pid_t child = ::fork();
  if (child == 0) RunAndExit(body);
  int status = 0;
  ::waitpid(child, &status, 0);
  if (WIFEXITED(status) && WEXITSTATUS(status) == kNotPossibleStatus) return false;
  EXPECT_EQ(status, 0) << "the process failed, or was ended by a signal";
  return true;
}

void BecomeOrdinaryUser() {
  if (::geteuid() != 0) return;
  RequirePossible(::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
}

void MountSmallDisk(const std::string& folder, const std::string& size) {
  const uid_t user = ::geteuid();
  const gid_t group = ::getegid();
  if (user == 0) {
    RequirePossible(::unshare(CLONE_NEWNS) == 0);
  } else {
    // In a user namespace of his own, an ordinary user may mount as well.
    RequirePossible(::unshare(CLONE_NEWNS | CLONE_NEWUSER) == 0);
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << "0 " + std::to_string(user) + " 1";
    std::ofstream("/proc/self/gid_map") << "0 " + std::to_string(group) + " 1";
  }
  RequirePossible(::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0);
  const std::string options = "mode=777,size=" + size;
  RequirePossible(::mount("none", folder.c_str(), "tmpfs", 0, options.c_str()) == 0);
}

}  // namespace tagsmith::test
