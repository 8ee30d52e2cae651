#include "services/host/HostRtfConversion.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>

#include "services/host/HostFiles.h"
#include "services/host/IconvDecoder.h"
#include "services/host/TemporaryFolder.h"

namespace tagsmith {
namespace {

using namespace test;

class HostRtfConversionTest : public testing::Test {
 protected:
  void Convert(std::string_view from, std::string_view to) {
    HostRtfConversion(files_).ScroogeConvertFile(folder_.System(from), folder_.System(to), 0,
                                                 "Program", "0", "0", "Arial", 0);
  }

  TemporaryFolder folder_;
  HostFiles files_;
};

constexpr std::string_view kTextAndPicture =
    "{\\rtf1\\ansicpg932 \\'93\\'fa\\'96\\'7b"
    "{\\pict\\pngblip\\picwgoal150\\pichgoal150 89504e470d0a1a0a0102}}";

TEST_F(HostRtfConversionTest, WritesThePageAndItsPicturesInPlaceOfOldOnes) {
  std::filesystem::create_directories(folder_ / "out");
  PutFile(folder_ / "a caf\xC3\xA9.v2.rtf", kTextAndPicture);
  PutFile(folder_ / "out/page.html", "old");
  PutFile(folder_ / "out/a caf\xC3\xA9.v2_1.png", "old");
  Convert("a caf\xC3\xA9.v2.rtf", "out/page.html");
  const std::string page = GetFile(folder_ / "out/page.html");
  for (const char* part : {"<title>a caf\xC3\xA9.v2</title>", "content=\"Program\"", "'Arial'",
                           "\xE6\x97\xA5\xE6\x9C\xAC", "src=\"a%20caf%C3%A9.v2_1.png\""}) {
    EXPECT_NE(page.find(part), std::string::npos) << part << " is not in\n" << page;
  }
  EXPECT_EQ(GetFile(folder_ / "out/a caf\xC3\xA9.v2_1.png"), "\x89PNG\r\n\x1A\n\x01\x02");
  EXPECT_EQ(NamesIn(folder_.Path()), (Names{"a caf\xC3\xA9.v2.rtf", "out"}));
}

TEST_F(HostRtfConversionTest, LeavesNoPageWhereSomethingFails) {
  PutFile(folder_ / "text.rtf", "no rich text");
  EXPECT_EQ(CodeThrownBy([this] { Convert("text.rtf", "text.html"); }), ErrorCode::kOther);
  EXPECT_EQ(CodeThrownBy([this] { Convert("gone.rtf", "gone.html"); }), ErrorCode::kFileNotFound);
  PutFile(folder_ / "one.rtf", kTextAndPicture);
  std::filesystem::create_directories(folder_ / "one_1.png");
  EXPECT_EQ(CodeThrownBy([this] { Convert("one.rtf", "one.html"); }), ErrorCode::kNotARegularFile);
  EXPECT_EQ(NamesIn(folder_.Path()), (Names{"text.rtf", "one.rtf", "one_1.png"}));
}

TEST_F(HostRtfConversionTest, MakesValidPagesOfTheSamples) {
  for (const auto& sample : std::filesystem::directory_iterator(TAGSMITH_RTF_SAMPLES)) {
    PutFile(folder_ / "one.rtf", GetFile(sample.path()));
    Convert("one.rtf", "one.html");
    EXPECT_EQ(std::system(("tidy -e -q --show-warnings yes " + folder_ / "one.html").c_str()), 0)
        << sample.path();
  }
}

TEST(IconvDecoder, KnowsTheCodePagesAndReplacesWhatIsNoCharacter) {
  const std::tuple<int, std::string_view, std::string_view> cases[] = {
      {932, "\x93\xFA", "\xE6\x97\xA5"},  {936, "\xD6\xD0", "\xE4\xB8\xAD"},
      {949, "\xC7\xD1", "\xED\x95\x9C"},  {950, "\xA4\xA4", "\xE4\xB8\xAD"},
      {1361, "\xD0\x65", "\xED\x95\x9C"}, {932, "a\xFF\x93", "a\xEF\xBF\xBD\xEF\xBF\xBD"},
      {77777, "a\xE9", "a\xEF\xBF\xBD"},  {936, "", ""},
  };
  IconvDecoder decoder;
  for (const auto& [codePage, bytes, text] : cases) {
    EXPECT_EQ(decoder.Decode(codePage, bytes), text) << codePage;
  }
  std::string expected;
  for (int i = 0; i < 5000; ++i) expected += "\xE6\x97\xA5";
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += "\x93\xFA";
  EXPECT_EQ(decoder.Decode(932, bytes), expected);
}

}  // namespace
}  // namespace tagsmith
