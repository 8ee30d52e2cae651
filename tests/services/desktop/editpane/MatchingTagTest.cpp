#include "services/desktop/editpane/MatchingTag.h"

#include <gtest/gtest.h>

#include <string>

namespace tagsmith {
namespace {

// Marks what is found for the place of the bar in `page` with brackets; "" where nothing is.
std::string Marked(std::string page) {
  const std::size_t place = page.find('|');
  page.erase(place, 1);
  const std::optional<TagPair> pair = FindMatchingTag(page, place);
  if (!pair) return "";
  for (const TextSpan& name : {pair->closing, pair->opening}) {
    page.insert(name.End(), "]").insert(name.start, "[");
  }
  return page;
}

TEST(FindMatchingTag, PairsTagsOfOneNameByTheirNesting) {
  EXPECT_EQ(Marked("<|div><div></div><p></div>"), "<[div]><div></div><p></[div]>");
  EXPECT_EQ(Marked("<div><div>\u00e9</div></d|iv>"), "<[div]><div>\u00e9</div></[div]>");
  EXPECT_EQ(Marked("|<B id='>' title=\"</b>\">x</b >"), "<[B] id='>' title=\"</b>\">x</[b] >");
  EXPECT_EQ(Marked("<a><b/><b></b></a|>"), "<[a]><b/><b></b></[a]>");
}

TEST(FindMatchingTag, SeesNoTagsInCommentsServerCodeAndScripts) {
  EXPECT_EQ(Marked("<|p><!-- </p> --><% '</p>' %><? '</p>' ?><!x></p>"),
            "<[p]><!-- </p> --><% '</p>' %><? '</p>' ?><!x></[p]>");
  EXPECT_EQ(Marked("<p><script>'</p>'</script></|p>"), "<[p]><script>'</p>'</script></[p]>");
  EXPECT_EQ(Marked("<|Script>a<b></div></SCRIPT>"), "<[Script]>a<b></div></[SCRIPT]>");
  EXPECT_EQ(Marked("<!-- <|p></p> -->"), "");
}

TEST(FindMatchingTag, FindsNothingWhereNothingBelongsTogether) {
  for (const char* page :
       {"<b>te|xt</b>", "<br|>x</br>", "<|p/></p>", "<|p>", "</|p>", "<p></p>|", "|", "<|p <b></p>",
        "<|p title=\"x></p>", "1 <| 2", "<|", "</|", "<script>|", "<|/p><p>"}) {
    EXPECT_EQ(Marked(page), "") << page;
  }
}

}  // namespace
}  // namespace tagsmith
