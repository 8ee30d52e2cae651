// Bytes, characters and case: what must come back as it went in.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "services/CaseFold.h"
#include "services/LowerCase.h"
#include "services/TextEncoding.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

void ExpectUnharmed(const std::string& bytes, TextEncoding expected) {
  DecodedText decoded = DecodeText(bytes);
  EXPECT_EQ(decoded.encoding, expected) << bytes;
  EXPECT_TRUE(IsValidUtf8(decoded.text)) << bytes;
  EXPECT_EQ(EncodeText(decoded.text, decoded.encoding), bytes);
}

TEST(TextEncoding, EveryFileComesBackAsItWas) {
  ExpectUnharmed("", TextEncoding::kUtf8);
  ExpectUnharmed("plain\r\nlone\rlone\n", TextEncoding::kUtf8);
  ExpectUnharmed(std::string("a\0b", 3), TextEncoding::kUtf8);
  ExpectUnharmed("\xEF\xBB\xBFmark \xC3\xA4 \xF0\x9F\x98\x80", TextEncoding::kUtf8);
  ExpectUnharmed("caf\xE9 \x80\x93", TextEncoding::kWindows1252);
  std::string all;
  for (int value = 0; value < 256; ++value) all += static_cast<char>(value);
  ExpectUnharmed(all, TextEncoding::kWindows1252);
  // No UTF-8: overlong, surrogate, beyond the last plane, cut off.
  for (const char* bytes :
       {"\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xC3"}) {
    ExpectUnharmed(bytes, TextEncoding::kWindows1252);
  }
}

TEST(TextEncoding, WhatWindows1252CannotHoldIsWrittenAsUtf8) {
  TextEncoding encoding = TextEncoding::kWindows1252;
  EXPECT_EQ(EncodeText("caf\xC3\xA9 \xE2\x82\xAC", encoding), "caf\xE9 \x80");
  EXPECT_EQ(encoding, TextEncoding::kWindows1252);

  EXPECT_EQ(EncodeText("\xD0\x96", encoding), "\xD0\x96");
  EXPECT_EQ(encoding, TextEncoding::kUtf8);

  // The bytes C3 A4 would be read as one character on the next load.
  encoding = TextEncoding::kWindows1252;
  const std::string twoCharacters = "\xC3\x83\xC2\xA4";
  EXPECT_EQ(DecodeText(EncodeText(twoCharacters, encoding)).text, twoCharacters);
}

TEST(CaseFold, FollowsTheCharacterDatabase) {
  EXPECT_EQ(FoldCase("ABCxyz[{"), "abcxyz[{");
  EXPECT_EQ(FoldCase(U'\u0130'), U'\u0130');  // Folds only in Turkish, or to two characters.
  EXPECT_EQ(FoldCase(U'\u1E9E'), U'\u00DF');
  EXPECT_EQ(FoldCase(U'\u03C2'), U'\u03C3');  // Final sigma.
  EXPECT_EQ(FoldCase(U'\U00010400'), U'\U00010428');
  EXPECT_EQ(FoldCase("A\xFF"), "a\xFF");

  EXPECT_TRUE(EqualWithoutCase("\u00C4b", "\u00E4B"));
  EXPECT_FALSE(EqualWithoutCase("ab", "abc"));
  EXPECT_TRUE(LessWithoutCase("a", "B"));
  EXPECT_TRUE(LessWithoutCase("A", "a"));

  std::vector<std::string> texts = {"\xFF",  "\xE9",     "Z", "\xC3\xA4", "b",
                                    "a\x80", "\xC3\x84", "a", "A"};
  std::vector<std::string> sorted = texts;
  std::sort(sorted.begin(), sorted.end(), LessWithoutCase);
  SortWithoutCase(texts);
  EXPECT_EQ(texts, sorted);
}

TEST(LowerCase, FollowsTheCharacterDatabaseAndFoldsNothing) {
  EXPECT_EQ(LowerCase("AZ[@`{az09"), "az[@`{az09");
  EXPECT_EQ(LowerCase("ÄÉΣЖ\u2126\u212A\u1E9E\u0130"), "äéσж\u03C9kß\u0069");
  EXPECT_EQ(LowerCase("\u13A0\u13EF\u13F5\U00010400"), "\uAB70\uABBF\u13FD\U00010428");
  const std::string small = "ςſµßı\u0345\u03D0\u03D6\u13F8\u1C80\u1C88\u1E9B\u1FBE\uAB70\uABBF";
  EXPECT_EQ(LowerCase(small), small);
  EXPECT_EQ(LowerCase("A\xFF\xC3"), "a\xFF\xC3");
}

}  // namespace
}  // namespace tagsmith
