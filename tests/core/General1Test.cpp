#include "core/general1.h"

#include <gtest/gtest.h>

namespace tagsmith {
namespace {

TEST(General1, TakesPathsApart) {
  EXPECT_EQ(AddBackslash("  C:\\dir "), "C:\\dir\\");
  EXPECT_EQ(AddBackslash("  "), "\\");
  EXPECT_EQ(Trim(" \t x \r "), "\t x \r");
  EXPECT_EQ(GetFileNameOnly("C:\\ü\\page.html"), "page.html");
  EXPECT_EQ(GetFileNameOnly("page.html"), "");
  EXPECT_EQ(GetNameBeforeDot("a.b.c"), "a");
  EXPECT_EQ(ParsePath("ü:\\é\\x", 2), "\\é\\");
  EXPECT_EQ(ParsePath("C:\\d.d\\pägé.b.c", 4), "pägé");
  EXPECT_EQ(ParsePath("C:\\d.d\\page", 4), "");
}

TEST(General1, ReadsColoursAndNumbers) {
  EXPECT_EQ(GetColorByte(0x123456, 2), 0x34);
  EXPECT_EQ(GetColorByte(16777215, 3), 255);
  EXPECT_EQ(GetColorByte(1, 0), -1);
  EXPECT_EQ(GetColorByte(-1, 1), -1);

  EXPECT_EQ(Val("  12abc"), 12);
  EXPECT_EQ(Val("-3.5x"), -3.5);
  EXPECT_EQ(Val(""), 0);
}

}  // namespace
}  // namespace tagsmith
