// The words of a page's source: which there are, where they stand, how they are spelt.

#include "integration/PageWords.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace tagsmith::integration {
namespace {

using Words = std::vector<std::string>;

// The spellings, each with the bytes in the page behind it where those are others.
Words WordsOf(std::string_view page, const WordOptions& options = {}) {
  Words words;
  PageWords walk(page, options);
  while (const auto word = walk.Next()) {
    const std::string_view written = page.substr(word->start, word->length);
    words.emplace_back(word->text);
    if (written != word->text) words.back().append("=").append(written);
  }
  return words;
}

struct Case {
  std::string_view page;
  Words words;
};

void ExpectWords(const std::vector<Case>& cases) {
  for (const Case& one : cases) EXPECT_EQ(WordsOf(one.page), one.words) << one.page;
}

TEST(PageWords, AreThoseThatAReaderSees) {
  ExpectWords({
      {"<P CLASS=\"x y\" id=z>One<br/>two</P >", {"One", "two"}},
      {"<!DOCTYPE html PUBLIC \"a\"><!-- b <p> c --><![CDATA[d > e]]>f", {"f"}},
      {"<!-->a<!--->b<!-- -- > --->c", {"a", "b", "c"}},
      {"<SCRIPT type=x>if (a</b) \"</scripts>\"</sCRIPT >d<style>e</style>f", {"d", "f"}},
      {"<cfif a GT 3>b<cfscript>c = 1</cfscript><CFQUERY name=d>select e</CFQUERY>f", {"b", "f"}},
      {"<?php echo 'a>b'; ?>c<%= d > e %>f<?xml g>h", {"c", "f", "h"}},
      {"a<?php echo 'to the end'; if ($b > 1)", {"a"}},
      {"<textarea>a</textarea><pre>b</pre><code>c</code>", {"a", "b", "c"}},
      {"<img ALT=\"a b>c\" src=d title='e &quot;f'><x alt = g/h alt2=i>j",
       {"a", "b", "c", "e", "f", "g", "h", "j"}},
      {"<img alt=\"<?= \"q\" ?>a <% \"r\" %>b\" title=>c", {"a", "b", "c"}},
      {"<a href=<?php \"x>\" ?> <% y > %> title=z>a", {"z", "a"}},
  });
}

TEST(PageWords, DamagedMarkupHidesNoMoreThanInABrowser) {
  ExpectWords({
      {"a < b and c<d<1", {"a", "b", "and", "c", "d"}},
      {"a <b c", {"a", "b", "c"}},
      {"<p class=\"a>b</p>c", {"b", "c"}},
      {"<p it's>a<p x='b>c", {"a", "c"}},
      {"<img alt=\"a> <% b %> c <? d > e <% f", {"a", "c", "e", "f"}},
      {"</ a>b</>c<!d>e<![CDATA[f>g", {"b", "c", "e", "g"}},
      {"a<% b", {"a", "b"}},
      {"a<!-- b", {"a"}},
      {"<script>a", {}},
      {"a<", {"a"}},
      {"a</", {"a"}},
      {"<p/", {"p"}},
      {"a &", {"a"}},
  });
}

TEST(PageWords, ReferencesBelongToTheirWord) {
  ExpectWords({
      {"caf&eacute;, na&#239;ve &#xC4;rger",
       {"café=caf&eacute;", "naïve=na&#239;ve", "Ärger=&#xC4;rger"}},
      {"&Auml;&ouml &szlig;a&eacutes &Omega;&sigmaf; &lstrok;",
       {"Äö=&Auml;&ouml", "ßaés=&szlig;a&eacutes", "Ως=&Omega;&sigmaf;", "ł=&lstrok;"}},
      {"don&rsquo;t don&#146;t don&#39;t",
       {"don’t=don&rsquo;t", "don’t=don&#146;t", "don't=don&#39;t"}},
      {"a&nbsp;b&nbsp c&mdash;d&unknown;e&#0;f&#xD800;g", {"a", "b", "c", "d", "e", "f", "g"}},
      {"Hand&shy;book\u00AD Hand\u00ADbook&shy;",
       {"Handbook=Hand&shy;book", "Handbook=Hand\u00ADbook"}},
      {"AT&T &amp;c &#;d &#x;e", {"AT", "T", "c", "d", "x", "e"}},
  });
}

TEST(PageWords, HoldLettersOfAllScriptsThatSetWordsApart) {
  ExpectWords({
      {"Größe Ελλάδα слово שלום كتاب हिन्दी 한국어",
       {"Größe", "Ελλάδα", "слово", "שלום", "كتاب", "हिन्दी", "한국어"}},
      {"e\u0301te\u0301 \u0301x ﬁx", {"e\u0301te\u0301", "x", "ﬁx"}},
      {"日本語のページ ภาษาไทย Qtは me", {"Qt", "me"}},
      {"don't don’t 'quoted' dogs' o''k rock'n'roll",
       {"don't", "don’t", "quoted", "dogs", "o", "k", "rock'n'roll"}},
      {"well-known a—b \u201Cx\u201D…y", {"well", "known", "a", "b", "x", "y"}},
      {"mp3 3rd H2O 1999 my_var 90's m² a4-size", {"size"}},
      {"a\xC3"
       "b\xFF"
       "c\xE4\xB8",
       {"a", "b", "c"}},
      {std::string_view("a\0b", 3), {"a", "b"}},
  });
  EXPECT_EQ(WordsOf(std::string(257, 'a') + " b"), Words{"b"});
}

TEST(PageWords, AddressesAreNone) {
  ExpectWords({
      {"See http://x.org/a(b),c?d=e&amp;f#g and (www.Some.org/x)!", {"See", "and"}},
      {"mailto:ann@host.org Ann@host <ann@host.org>, x", {"x"}},
      {"c:\\dir\\File c:/x \\\\server\\share dir\\file 'd:\\x' z", {"z"}},
      {"/usr/bin ./x ../y ~/z \"/etc/a-b\" and/or he/she", {"and", "or", "he", "she"}},
      {"host.names.tld index.html e.g. 3.5mm end.Next one...two last.",
       {"end", "Next", "one", "two", "last"}},
      {"end.Étatt côté.Fin e\u0301te\u0301.Fin λόγος.Επόμενη É.Tatt straße.de côté.ß",
       {"end", "Étatt", "côté", "Fin", "e\u0301te\u0301", "Fin", "λόγος", "Επόμενη"}},
      {"a\u00A0www.x.org—b “/usr/bin”", {"a"}},
      {"<img alt=\"see www.x.org\"> <b>c", {"see", "c"}},
      {"note: this@ \\ / : . @home", {"note", "this"}},
  });
}

TEST(PageWords, OptionsDecide) {
  EXPECT_EQ(WordsOf("A TEH Teh mp3", {.passOverCapitals = true}), (Words{"A", "Teh"}));
  EXPECT_EQ(WordsOf("ÄÖ &Auml;B Äö", {.passOverCapitals = true}), Words{"Äö"});
  EXPECT_EQ(WordsOf("a éé abc", {.leastLetters = 2}), (Words{"éé", "abc"}));
  EXPECT_EQ(WordsOf("mp3 12 my_var", {.passOverDigits = false}), (Words{"mp3", "my_var"}));
  EXPECT_EQ(WordsOf("<b c=d>&eacute;<!--b-->", {.pageTextOnly = false}),
            (Words{"b", "c", "d", "é=&eacute;", "b"}));
}

TEST(PageWords, ACorrectionIsWrittenAsTheWordWas) {
  const auto written = [](std::string_view page, std::string_view text) {
    PageWords walk(page);
    const auto word = walk.Next();
    return WrittenAs(text, word.value(), page.substr(word->start, word->length));
  };
  EXPECT_EQ(written("cafe", "café & <b>"), "café & <b>");
  EXPECT_EQ(written("caf&egrave;", "cafés ł’"), "caf&eacute;s &#322;&#8217;");
  EXPECT_EQ(written("<i alt='dont'>", "don't \""), "don&#39;t \"");
  EXPECT_EQ(written("<i alt=\"dont\">", "don't \""), "don't &#34;");
  EXPECT_EQ(written("<i alt=alot>", "a lot"), "a&#32;lot");
}

// Each takes milliseconds; in time that grows with the square of the page, minutes.
TEST(PageWords, NothingThatIsLeftOpenIsLookedForAgainAndAgain) {
  for (const std::string_view piece :
       {"<!--",    "<![CDATA[", "<!",        "<?",      "<?php",      "<%",       "<a", "</a",
        "<a b=\"", "<a b='",    "<a b=\"<%", "<a b=<?", "<i alt=\"a", "<script>", "</", "a&shy;",
        "&#",      "&abc",      "a'",        "\u200D",  "a.b@",       "www.a"}) {
    for (const std::string_view end : {"", "\">"}) {
      std::string page;
      while (page.size() < 1'000'000) page += piece;
      PageWords walk(page += end);
      while (walk.Next()) {
      }
    }
  }
}

}  // namespace
}  // namespace tagsmith::integration
