#include "services/host/HostSettings.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "services/host/TemporaryFolder.h"
#include "services/host/TestProcess.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;
using namespace test;
using namespace std::string_literals;

class HostSettingsTest : public testing::Test {
 protected:
  static std::string Get(const HostSettings& settings, std::string_view key) {
    return settings.GetSetting("Tagsmith", "Settings", key, "default");
  }
  static void Save(HostSettings& settings, std::string_view key, std::string_view value) {
    settings.SaveSetting("Tagsmith", "Settings", key, value);
  }

  TemporaryFolder folder_;
  std::string path_ = folder_ / "config/tagsmith/settings.json";
};

TEST_F(HostSettingsTest, EveryTextComesBackTheSame) {
  const std::string bytes = "<A Href=\"\\u00e9\">\r\n\t\0 é😀 \xE9\xFF \xED\xA0\x80 \uF800"s;
  const Names texts = {"", bytes, "\uFEFFa byte order mark"};
  HostSettings settings(path_);
  for (const std::string& text : texts) Save(settings, "key " + text, text);
  const HostSettings nextRun(path_);
  for (const std::string& text : texts) EXPECT_EQ(Get(nextRun, "key " + text), text);
  EXPECT_EQ(fs::status(folder_ / "config/tagsmith").permissions(), fs::perms::owner_all);
  EXPECT_EQ(NamesIn(folder_ / "config/tagsmith"), (Names{"settings.json"}));
}

TEST_F(HostSettingsTest, RunningProgramsSeeAndKeepEachOthersTexts) {
  const HostSettings one(path_);
  EXPECT_EQ(Get(one, "x0"), "default");
  constexpr int kTexts = 15;
  InProcess([this] {
    const pid_t other = ::fork();
    HostSettings mine(path_);
    for (int i = 0; i < kTexts; ++i) Save(mine, (other == 0 ? "x" : "y") + std::to_string(i), "z");
    if (other == 0) ::_exit(0);
    ::waitpid(other, nullptr, 0);
  });
  for (int i = 0; i < kTexts; ++i) {
    EXPECT_EQ(Get(one, "x" + std::to_string(i)) + Get(one, "y" + std::to_string(i)), "zz") << i;
  }
}

TEST_F(HostSettingsTest, ADamagedFileGivesWhatIsReadableAndIsKeptAside) {
  const std::string file = folder_ / "settings.json";
  const std::vector<std::string> damaged = {
      "{\"Tagsmith\": {\"Settings\": {\"a\": \"te", "[]", "\xFF\xFE", R"({"Tagsmith": 1})",
      R"({"Tagsmith": {"Settings": {"number": 1, "good": "readable"}}})"};
  std::string aside = file + ".damaged";
  for (std::size_t i = 0; i < damaged.size(); ++i) {
    PutFile(file, damaged[i]);
    HostSettings settings(file);
    EXPECT_EQ(Get(settings, "number"), "default");
    EXPECT_EQ(GetFile(file), damaged[i]);
    Save(settings, "a", "text");
    EXPECT_EQ(GetFile(aside), damaged[i]);
    EXPECT_EQ(Get(HostSettings(file), "good"), i == 4 ? "readable" : "default");
    aside = file + ".damaged." + std::to_string(i + 2);
  }
}

TEST_F(HostSettingsTest, WhatCannotBeWrittenLastsForTheRunAndIsTriedAgain) {
  PutFile(folder_ / "config", "a file where the folder should be");
  HostSettings settings(path_);
  Save(settings, "a", "first");
  Save(settings, "a", "second");
  EXPECT_EQ(Get(settings, "a"), "second");
  EXPECT_TRUE(settings.Trouble().ends_with(": Not a directory"));
  fs::remove(folder_ / "config");
  Save(settings, "b", "third");
  EXPECT_EQ(settings.Trouble(), "");
  EXPECT_EQ(Get(HostSettings(path_), "a"), "second");
  EXPECT_EQ(Get(HostSettings(path_), "b"), "third");
}

TEST_F(HostSettingsTest, WhatCannotBeReadAtAllIsKeptAsideToo) {
  fs::create_directories(path_ + "/full");
  HostSettings settings(path_);
  Save(settings, "a", "text");
  EXPECT_EQ(Get(HostSettings(path_), "a"), "text");
  EXPECT_EQ(NamesIn(path_ + ".damaged"), Names{"full"});
}

}  // namespace
}  // namespace tagsmith
