#include "services/rtf/CodePages.h"

#include <gtest/gtest.h>

namespace tagsmith::rtf {
namespace {

TEST(CodePages, GiveTheCharactersOfTheirBytes) {
  struct Case {
    int codePage;
    unsigned char byte;
    char32_t character;
  };
  const Case cases[] = {
      {1252, 'A', U'A'},     {1252, 0x80, 0x20AC},  {1252, 0x81, 0xFFFD},  {9999, 0x93, 0x201C},
      {1250, 0xB9, 0x0105},  {1251, 0xFF, 0x044F},  {437, 0x82, 0x00E9},   {437, 0xFF, 0x00A0},
      {708, 0xC7, 0x0627},   {874, 0xA1, 0x0E01},   {10000, 0x8A, 0x00E4}, {28605, 0xA4, 0x20AC},
      {42, 0xB7, 0xF0B7},    {42, 'a', 0xF061},     {932, 0x82, 0xFFFD},   {65001, 0xC3, 0xFFFD},
      {28605, 0xFF, 0x00FF}, {10081, 0xDF, 0x015F},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(FromCodePage(one.codePage, one.byte), one.character) << one.codePage;
  }
}

TEST(CodePages, BelongToCharacterSets) {
  EXPECT_EQ(CodePageOfCharset(204), 1251);
  EXPECT_EQ(CodePageOfCharset(128), 932);
  EXPECT_EQ(CodePageOfCharset(78), 932);
  EXPECT_EQ(CodePageOfCharset(89), 10007);
  EXPECT_EQ(CodePageOfCharset(1), 0);
  EXPECT_EQ(CodePageOfCharset(-5), 0);
  EXPECT_TRUE(IsMultiByte(950));
  EXPECT_FALSE(IsMultiByte(1250));
}

}  // namespace
}  // namespace tagsmith::rtf
