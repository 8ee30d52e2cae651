#include "services/TextSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "services/FoldedChar.h"

namespace tagsmith {
namespace {

struct Place {
  std::size_t start = std::string_view::npos;
  std::size_t length = 0;

  bool operator==(const Place&) const = default;
};

Place Found(std::string_view text, std::string_view pattern, std::size_t from = 0) {
  const auto match = TextSearch(pattern).Find(text, from);
  return match ? Place{match->start, match->length} : Place{};
}

TEST(TextSearch, CaseDoesNotCountAndAMatchHasItsOwnLength) {
  EXPECT_EQ(Found("x<TITLE>", "title"), (Place{2, 5}));
  // KELVIN SIGN is a K, LATIN SMALL LETTER LONG S an s.
  EXPECT_EQ(Found("a \xE2\x84\xAA\xC5\xBF!", "ks"), (Place{2, 5}));
  EXPECT_EQ(Found("a KS!", "\xE2\x84\xAA\xC5\xBF"), (Place{2, 2}));
  EXPECT_EQ(Found("\xCE\xA3\xCF\x82", "\xCF\x83", 1), (Place{2, 2}));  // Sigmas.
}

// The first place where the folded characters are the pattern's, tried one after the other.
Place FoundByHand(std::string_view text, std::string_view pattern, std::size_t from) {
  for (std::size_t start = 0; start < text.size(); start += ReadFolded(text, start).length) {
    if (start < from) continue;
    std::size_t end = start;
    std::size_t i = 0;
    while (i < pattern.size() && end < text.size() &&
           ReadFolded(text, end).value == ReadFolded(pattern, i).value) {
      end += ReadFolded(text, end).length;
      i += ReadFolded(pattern, i).length;
    }
    if (i == pattern.size()) return {start, end - start};
  }
  return {};
}

TEST(TextSearch, FindsWhatASearchByHandFinds) {
  const std::vector<std::string> pieces = {
      "a",        "B", "b",        "k",    "K",    "\xE2\x84\xAA",
      "\xC3\xA4", "s", "\xC3\x84", "\xC3", "\xA4", "\xE2\x84"};
  std::mt19937 random(7);
  const auto make = [&](std::size_t most, std::size_t kinds) {
    std::string text;
    for (auto count = random() % (most + 1); count > 0; --count) text += pieces[random() % kinds];
    return text;
  };
  for (int round = 0; round < 30'000; ++round) {
    const std::size_t kinds = 1 + random() % pieces.size();
    const std::string text = make(round % 10 == 0 ? 1500 : 40, kinds);
    const std::string pattern = make(round % 10 == 0 ? 12 : 6, kinds);
    const std::size_t from = random() % (text.size() + 2);
    ASSERT_EQ(Found(text, pattern, from), FoundByHand(text, pattern, from))
        << testing::PrintToString(text) << " " << testing::PrintToString(pattern) << " " << from;
  }
}

TEST(TextSearch, AMatchThatBeganInFrontIsCompleted) {
  const TextSearch search("abcab");
  EXPECT_EQ(search.BegunAtEnd("xABC"), 3U);
  EXPECT_EQ(search.BegunAtEnd("abcab"), 2U);
  EXPECT_EQ(search.BegunAtEnd("abx"), 0U);
  const auto completed = search.FindBegun(4, "-bCAB", 1);
  ASSERT_TRUE(completed);
  EXPECT_EQ(completed->before, 4U);
  EXPECT_EQ(completed->end, 2U);
  EXPECT_FALSE(search.FindBegun(3, "xabcab", 0));
  EXPECT_FALSE(search.FindBegun(0, "abcab", 0));
  // The longest beginning fails, a shorter one goes on.
  const auto shorter = TextSearch("aab").FindBegun(2, "ab", 0);
  ASSERT_TRUE(shorter);
  EXPECT_EQ(shorter->before, 1U);
}

// Each takes milliseconds; a search that looks at the pattern anew at every place takes minutes.
// In quadratic time it would not end before the test is stopped.
TEST(TextSearch, NoPatternMakesItSlow) {
  constexpr std::size_t kSize = 1'000'000;
  const std::string as(kSize, 'a');
  const std::string half(kSize / 2, 'a');
  std::string rare = as;
  for (std::size_t i = 0; i < kSize; i += 100) rare[i] = 'q';

  EXPECT_EQ(Found(as, half + "b"), Place{});
  EXPECT_EQ(Found(as, "b" + half), Place{});
  EXPECT_EQ(Found(as, half + "b" + half.substr(1)), Place{});
  EXPECT_EQ(Found(as + "b", half + "b"), (Place{kSize / 2, kSize / 2 + 1}));
  EXPECT_EQ(Found(rare, rare.substr(0, 50'000) + "b"), Place{});
  const TextSearch every("a");
  std::size_t count = 0;
  for (auto match = every.Find(as); match; match = every.Find(as, match->start + 1)) ++count;
  EXPECT_EQ(count, kSize);
}

}  // namespace
}  // namespace tagsmith
