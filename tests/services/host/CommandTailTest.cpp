#include "services/host/CommandTail.h"

#include <gtest/gtest.h>

#include <vector>

namespace tagsmith {
namespace {

std::string TailOf(std::vector<const char*> arguments) {
  arguments.insert(arguments.begin(), "tagsmith");
  return CommandTail(static_cast<int>(arguments.size()), arguments.data(), DriveMap(),
                     "c:\\home\\ann");
}

TEST(CommandTail, IsOnePathWhateverTheShellMadeOfIt) {
  EXPECT_EQ(TailOf({"  "}), "  ");
  EXPECT_EQ(TailOf({"my", "own", "page.html"}), "c:\\home\\ann\\my own page.html");
  EXPECT_EQ(TailOf({"/srv/www//a.html"}), "c:\\srv\\www\\a.html");
  EXPECT_EQ(TailOf({" /srv/a.html", ""}), " c:\\srv\\a.html ");
  EXPECT_EQ(TailOf({"c:\\home\\ann\\my", "page.html "}), "c:\\home\\ann\\my page.html ");
  EXPECT_EQ(TailOf({"D:/a.html"}), "D:/a.html");
  // Dots are worked out only where no link can be meant.
  EXPECT_EQ(TailOf({"../bob/./a.html"}), "c:\\home\\bob\\a.html");
  EXPECT_EQ(TailOf({"../../../../a.html"}), "c:\\a.html");
  EXPECT_EQ(TailOf({"link/../a.html"}), "c:\\home\\ann\\link\\..\\a.html");
}

TEST(CommandTail, DecodesFileUrls) {
  EXPECT_EQ(TailOf({"file:///home/ann/a%20b%C3%A9.html"}), "c:\\home\\ann\\a bé.html");
  EXPECT_EQ(TailOf({"file://localhost/a%E9"}), DriveMap::ToSystemPath("/a\xE9"));
  EXPECT_EQ(TailOf({"/my", "file:///x%2"}), "c:\\my \\x%2");
  EXPECT_EQ(TailOf({"file:///a%00b"}), "c:\\home\\ann\\file\uF03A\\a%00b");
}

}  // namespace
}  // namespace tagsmith
