#include "services/rtf/CodePages.h"

#include <gtest/gtest.h>

namespace tagsmith::rtf {
namespace {

TEST(CodePages, GiveTheCharactersOfTheirBytesAndBelongToCharsets) {
  EXPECT_EQ(FromCodePage(1252, 0x81), U'\uFFFD');
  EXPECT_EQ(FromCodePage(9999, 0x93), U'\u201C');
  EXPECT_EQ(FromCodePage(437, 0xFF), U'\u00A0');
  EXPECT_EQ(FromCodePage(28605, 0xA4), U'\u20AC');
  EXPECT_EQ(FromCodePage(42, 0xB7), U'\uF0B7');
  EXPECT_EQ(FromCodePage(950, 0x82), U'\uFFFD');
  EXPECT_EQ(CodePageOfCharset(128), 932);
}

}  // namespace
}  // namespace tagsmith::rtf
