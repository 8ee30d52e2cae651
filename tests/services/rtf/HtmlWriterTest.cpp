#include "services/rtf/HtmlWriter.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace tagsmith::rtf {
namespace {

CellFormat CellTo(int rightEdge, Merge down = Merge::kNone, Merge across = Merge::kNone) {
  return {rightEdge, across, down, VerticalAlignment::kTop, kAbsent, {}};
}

RowFormat RowOf(std::vector<CellFormat> cells, int leftEdge = 0) {
  return {leftEdge, false, Alignment::kLeft, std::move(cells)};
}

ParagraphFormat InTable(int depth) { return {.list = {}, .tableDepth = depth}; }

ParagraphFormat InList(int level, Numbering numbering, int list = 0, int leftIndent = 0) {
  return {.leftIndent = leftIndent, .list = {list, level, numbering, 1}};
}

/// A document in the making, told as a reader would.
class Script {
 public:
  explicit Script(const PageOptions& options = {}) : writer_(options) { writer_.Begin(); }

  HtmlWriter& Writer() { return writer_; }

  Script& Text(std::string_view text, const CharacterFormat& format = {}) {
    return Add({RunKind::kText, paragraph_.text.size(), text.size(), kAbsent, format}, text);
  }
  Script& Run(RunKind kind, int number = kAbsent) { return Add({kind, 0, 0, number, {}}, ""); }
  Script& Bookmark(std::string_view name) {
    return Add({RunKind::kBookmark, paragraph_.text.size(), name.size(), kAbsent, {}}, name);
  }
  Script& Par(const ParagraphFormat& format = {}) {
    paragraph_.format = format;
    writer_.AddParagraph(paragraph_);
    paragraph_ = {};
    return *this;
  }
  Script& Par(std::string_view text, const ParagraphFormat& format = {}) {
    return Text(text).Par(format);
  }
  Script& Cell(std::string_view text, int depth = 1) {
    Par(text, InTable(depth));
    writer_.EndCell(depth);
    return *this;
  }
  Script& Row(const RowFormat& format, int depth = 1) {
    writer_.EndRow(depth, format);
    return *this;
  }

  WebPage Page() {
    writer_.End();
    return writer_.Take();
  }
  /// What stands in the body, with LF for line ends.
  std::string Body() {
    std::string html = Page().html;
    std::erase(html, '\r');
    const std::size_t begin = html.find("<body>\n") + 7;
    return html.substr(begin, html.rfind("</body>") - begin);
  }

 private:
  Script& Add(const struct Run& run, std::string_view text) {
    paragraph_.text += text;
    paragraph_.runs.push_back(run);
    return *this;
  }

  HtmlWriter writer_;
  Paragraph paragraph_;
};

// The table without its style and columns.
std::string BareTable(Script& script) {
  std::string body = script.Body();
  const std::size_t row = body.find("<t", body.find("</colgroup>"));
  return row == std::string::npos ? body : body.substr(row);
}

TEST(HtmlWriterText, IsEscapedAndKeepsItsBlanks) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"a<b>&\"c\"", "a&lt;b&gt;&amp;&quot;c&quot;"},
      {"  a  b   c", "&nbsp; a &nbsp;b &nbsp; c"},
      {"x\x01\xC2\x85\xEF\xBF\xBE\xEF\xBF\xBF\xEF\xB7\x90\xF0\x9F\xBF\xBFy", "xy"},
      {"\xC2\xA0\xC2\xA1\xEF\xBB\xBF\xF0\x9F\x98\x80",
       "&nbsp;\xC2\xA1\xEF\xBB\xBF\xF0\x9F\x98\x80"},
      {"\x01\xC2\x85", "&nbsp;"},
  };
  for (const auto& [text, html] : cases) {
    EXPECT_EQ(Script().Par(text).Body(), "<p>" + std::string(html) + "</p>\n");
  }
  EXPECT_EQ(Script().Text("a ").Text(" b").Run(RunKind::kLineBreak).Text(" c").Par().Body(),
            "<p>a &nbsp;b<br>&nbsp;c</p>\n");
  EXPECT_EQ(Script().Run(RunKind::kTab).Text(" a").Run(RunKind::kLineBreak).Par().Body(),
            "<p>&emsp;&emsp;&emsp; a<br>&nbsp;</p>\n");
}

TEST(HtmlWriterText, OpensAndClosesNoMoreThanWhatDiffers) {
  Script script;
  script.Text("a", {.bold = true}).Text("b", {.bold = true, .italic = true}).Text(" ");
  script.Text("c", {.bold = true}).Text("2", {.bold = true, .raise = Raise::kSuper});
  script.Text("d", {.underline = true, .strike = true});
  script.Text(" ", {.italic = true}).Text(" ", {.underline = true}).Par();
  EXPECT_EQ(script.Body(), "<p><b>a<i>b </i>c<sup>2</sup></b><u><s>d</s></u> <u>&nbsp;</u></p>\n");
}

TEST(HtmlWriterText, SpansTellOnlyWhatMostTextIsNot) {
  Script script({"", "", "Arial", ""});
  script.Writer().AddFont(0, "Times </style> New", "serif");
  script.Text("small", {.font = 0, .halfPoints = 15})
      .Text("most of the text", {.halfPoints = 20})
      .Text("black", {.halfPoints = 20, .colour = 0})
      .Text("x", {.smallCaps = true, .halfPoints = 20, .colour = 0x0A0BFF, .background = 0xFFFF00});
  script.Writer().SetTitle("A & B");
  const std::string html = script.Par().Page().html;
  EXPECT_NE(html.find("body{font-family:'Arial';font-size:10pt}"), std::string::npos) << html;
  EXPECT_NE(html.find("<title>A &amp; B</title>"), std::string::npos);
  EXPECT_NE(html.find("<p><span style=\"font-family:'Times \\3c /style\\3e  New',serif;"
                      "font-size:7.5pt\">small</span>most of the textblack<span style=\"color:"
                      "#0a0bff;background-color:#ffff00;font-variant:small-caps\">x</span></p>"),
            std::string::npos)
      << html;
}

TEST(HtmlWriterParagraphs, TellWhatDiffersFromThePage) {
  const ParagraphFormat hanging{
      .alignment = Alignment::kCentre, .firstLineIndent = -360, .spaceAfter = 55, .list = {}};
  const ParagraphFormat heading{.heading = 2, .list = {}, .pageBreakBefore = true};
  const ParagraphFormat hebrew{.rightToLeft = true, .background = 0xEEEEEE, .list = {}};
  EXPECT_EQ(Script().Par("a", hanging).Text("b", {.bold = true}).Par(heading).Par(hebrew).Body(),
            "<p style=\"text-align:center;text-indent:-18pt;margin-bottom:2.75pt\">a</p>\n"
            "<h2 style=\"break-before:page\"><b>b</b></h2>\n"
            "<p dir=\"rtl\" style=\"text-align:left;background-color:#eeeeee\">&nbsp;</p>\n");
}

TEST(HtmlWriterLists, NestGoOnAndHoldParagraphsAndHeadings) {
  const ParagraphFormat numbered = InList(0, Numbering::kDecimal, 0, 720);
  Script script;
  script.Par("one", numbered);
  script.Par("deep", InList(2, Numbering::kBullet, 0, 1440));
  script.Par("more of one", {.leftIndent = 720, .list = {}});
  script.Par("two", numbered).Par("between").Par("three", numbered);
  script.Par("other", InList(0, Numbering::kLowerLetter, 1));
  ParagraphFormat heading = InList(0, Numbering::kUpperRoman, 7, 400);
  heading.list.start = 4;
  heading.heading = 1;
  script.Par("x", heading);
  EXPECT_EQ(script.Body(),
            "<ol>\n<li>one\n<ul>\n<li>deep</li>\n</ul><p>more of one</p>\n</li>\n<li>two</li>\n"
            "</ol>\n<p>between</p>\n<ol start=\"3\">\n<li>three</li>\n</ol>\n"
            "<ol type=\"a\">\n<li>other</li>\n</ol>\n"
            "<ol type=\"I\" start=\"4\" style=\"padding-left:20pt\">\n<li><h1>x</h1>\n</li>\n"
            "</ol>\n");
}

TEST(HtmlWriterTables, ColumnsComeFromTheEdgesOfAllRows) {
  Script script;
  script.Cell("a").Cell("b").Row(RowOf({CellTo(1000), CellTo(3000)}));
  script.Cell("c").Cell("d").Row(RowOf({CellTo(2010), CellTo(2990)}));
  script.Cell("e").Row(RowOf({CellTo(2000)}, 1000));
  EXPECT_EQ(script.Body(),
            "<table style=\"width:149.5pt\">\n"
            "<colgroup><col style=\"width:50pt\"><col style=\"width:50pt\">"
            "<col style=\"width:49.5pt\"></colgroup>\n"
            "<tr>\n<td><p>a</p>\n</td>\n<td colspan=\"2\"><p>b</p>\n</td>\n</tr>\n"
            "<tr>\n<td colspan=\"2\"><p>c</p>\n</td>\n<td><p>d</p>\n</td>\n</tr>\n"
            "<tr>\n<td></td>\n<td><p>e</p>\n</td>\n<td></td>\n</tr>\n</table>\n");
}

TEST(HtmlWriterTables, MergedCellsAreOneWithAllTheirTextAndEmptyOnesKeepTheirHeight) {
  Script script;
  script.Cell("a").Cell("b").Cell("c").Row(
      RowOf({CellTo(1000, Merge::kNone, Merge::kFirst),
             CellTo(2000, Merge::kNone, Merge::kContinued), CellTo(3000, Merge::kFirst)}));
  script.Cell("d").Cell("e").Cell("f").Row(
      RowOf({CellTo(1000), CellTo(2000), CellTo(3000, Merge::kContinued)}));
  script.Cell("g").Cell("h").Cell("i").Row(
      RowOf({CellTo(1000), CellTo(2000, Merge::kContinued), CellTo(3000)}));
  script.Cell("j").Row(RowOf({CellTo(3000, Merge::kFirst)}));
  script.Cell("k").Row(RowOf({CellTo(3000, Merge::kContinued)}));
  script.Writer().EndCell(1);
  script.Row(RowOf({CellTo(3000)}));
  EXPECT_EQ(BareTable(script),
            "<tr>\n<td colspan=\"2\"><p>a</p>\n<p>b</p>\n</td>\n"
            "<td rowspan=\"2\"><p>c</p>\n<p>f</p>\n</td>\n</tr>\n"
            "<tr>\n<td><p>d</p>\n</td>\n<td><p>e</p>\n</td>\n</tr>\n"
            "<tr>\n<td><p>g</p>\n</td>\n<td><p>h</p>\n</td>\n<td><p>i</p>\n</td>\n</tr>\n"
            "<tr>\n<td colspan=\"3\"><p>j</p>\n<p>k</p>\n</td>\n</tr>\n"
            "<tr>\n<td colspan=\"3\">&nbsp;</td>\n</tr>\n</table>\n");
}

TEST(HtmlWriterTables, HeadBordersAndShading) {
  Script script;
  RowFormat row = RowOf({CellTo(1000, Merge::kFirst), CellTo(2000)});
  row.isHeader = true;
  row.cells[0].borders.fill({.isThere = true, .width = 20, .colour = 0xFF0000});
  row.cells[1].borders[2] = {.isThere = true};
  row.cells[1].background = 0xDDDDDD;
  row.cells[1].alignment = VerticalAlignment::kCentre;
  script.Cell("a").Cell("b").Row(row);
  script.Cell("c").Row(RowOf({CellTo(1000, Merge::kContinued)}));
  EXPECT_EQ(BareTable(script),
            "<thead>\n<tr>\n<td style=\"border:1pt solid #ff0000\"><p>a</p>\n</td>\n"
            "<td style=\"border-bottom:0.75pt solid;background-color:#dddddd;"
            "vertical-align:middle\"><p>b</p>\n</td>\n</tr>\n</thead>\n"
            "<tr>\n<td><p>c</p>\n</td>\n<td></td>\n</tr>\n</table>\n");
}

TEST(HtmlWriterTables, NestedOnesStandInTheirCell) {
  Script script;
  script.Par("before", InTable(1));
  script.Cell("inner", 2).Row({}, 2).Cell("after").Row({});
  EXPECT_EQ(script.Body(),
            "<table>\n<tr>\n<td><p>before</p>\n<table>\n<tr>\n<td><p>inner</p>\n</td>\n</tr>\n"
            "</table>\n<p>after</p>\n</td>\n</tr>\n</table>\n");
}

TEST(HtmlWriterTables, DamagedOnesLoseNoText) {
  EXPECT_EQ(Script().Par("a", InTable(3)).Par("b").Body(), "<p>a</p>\n<p>b</p>\n");
  Script noRow;
  noRow.Cell("a").Par("b");
  EXPECT_EQ(noRow.Body(), "<table>\n<tr>\n<td><p>a</p>\n</td>\n</tr>\n</table>\n<p>b</p>\n");
  Script strange;
  strange.Row(RowOf({CellTo(100)})).Row({}, 5).Row({}, -1);
  strange.Par("deep", InTable(1 << 30));
  strange.Writer().EndCell(1 << 30);
  strange.Cell("a").Cell("b").Row(RowOf({CellTo(2000), CellTo(-2000), CellTo(1 << 30)}));
  const std::string body = strange.Body();
  for (const char* text : {"<p>deep</p>", "<p>a</p>", "<p>b</p>"}) {
    EXPECT_NE(body.find(text), std::string::npos) << body;
  }
}

TEST(HtmlWriterTables, ManyRowsOfManyColumnsTakeNoMoreThanTheirSize) {
  Script script;
  RowFormat wide = RowOf(std::vector<CellFormat>(20000, CellTo(50)));
  for (int i = 0; i < 3000; ++i) {
    wide.leftEdge = i;
    for (CellFormat& cell : wide.cells) {
      if (cell.rightEdge++ > 100) break;
    }
    script.Cell("x").Row(wide);
  }
  EXPECT_LT(script.Page().html.size(), 500000U);
}

TEST(HtmlWriterLinks, LeadWhereTheyMayAndToBookmarksThatAreThere) {
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"http://a.b/c d?e=1&f=\"2\"", "http://a.b/c%20d?e=1&amp;f=%222%22"},
      {"MAILTO:x@y.z", "MAILTO:x@y.z"},
      {"sub\\page.html#top", "sub/page.html#top"},
      {"C:\\my docs\\a.rtf", "file:///C:/my%20docs/a.rtf"},
      {"\\\\server\\share", "file://server/share"},
      {"\xC3\xA9.html", "%C3%A9.html"},
      {"#here", "#here"},
      {"#not here", ""},
      {" java\tscript:alert(1)", ""},
      {"\x01VBScript:x", ""},
      {"data:text/html,x", ""},
  };
  for (const auto& [target, address] : cases) {
    Script script;
    script.Writer().AddLink(3, target);
    const std::string link =
        address.empty() ? "go" : "<a href=\"" + std::string(address) + "\">go</a>";
    script.Bookmark("here").Bookmark("here").Bookmark("1 two");
    script.Text("go", {.underline = !address.empty(), .link = 3}).Par();
    EXPECT_EQ(script.Body(),
              "<p><span id=\"here\"></span><span id=\"b_1_two\"></span>" + link + "</p>\n")
        << target;
  }
}

TEST(HtmlWriterLinks, LongOnesDoNotMakeThePageFarLargerThanItsText) {
  Script script;
  script.Writer().AddLink(0, std::string(2048, 'x'));
  script.Writer().AddLink(1, std::string(2049, 'x'));
  script.Writer().AddLink(2, '#' + std::string(2049, 'x'));
  script.Text("a", {.link = 0}).Text("b", {.link = 1}).Text("c", {.link = 2}).Par();
  for (int i = 0; i < 5000; ++i) script.Text("d", {.link = 0}).Par();
  const std::string body = script.Body();
  const std::string link = "<a href=\"" + std::string(2048, 'x') + "\">";
  EXPECT_EQ(body.find("<p>" + link + "a</a>bc</p>\n<p>" + link + "d</a></p>"), 0U);
  EXPECT_TRUE(body.ends_with("<p>d</p>\n<p>d</p>\n"));
  EXPECT_LT(body.size(), 5000U * 800);
}

TEST(HtmlWriterText, LongStylesStandOnceInTheStyleSheet) {
  Script script;
  const std::string name(255, 'n');
  script.Writer().AddFont(0, name, "");
  script.Writer().AddFont(1, name + 'n', "serif");
  script.Text("most").Text("a", {.font = 0}).Text("b").Text("c", {.font = 0});
  script.Text("d", {.font = 1});
  const std::string html = script.Par().Page().html;
  EXPECT_NE(html.find("\r\n.s2{font-family:'" + name + "'}\r\n</style>"), std::string::npos);
  EXPECT_NE(html.find("most<span class=\"s2\">a</span>b<span class=\"s2\">c</span>"
                      "<span style=\"font-family:serif\">d</span>"),
            std::string::npos)
      << html;
}

TEST(HtmlWriterNotes, StandAtTheEndWithLinksBothWays) {
  Script script;
  script.Writer().BeginNote(5);
  script.Par("note");
  script.Writer().EndNote();
  script.Text("a").Run(RunKind::kNote, 5).Run(RunKind::kNote, 5).Run(RunKind::kNote, 6).Par();
  EXPECT_EQ(script.Body(),
            "<p>a<sup><a id=\"note-mark-1\" href=\"#note-1\">1</a></sup>"
            "<sup><a href=\"#note-1\">1</a></sup></p>\n"
            "<section class=\"notes\">\n<hr>\n<ol>\n<li id=\"note-1\"><p>note "
            "<a href=\"#note-mark-1\">\xE2\x86\xA9</a></p>\n</li>\n</ol>\n</section>\n");
}

TEST(HtmlWriterPictures, AreShownFromFilesOrToldOf) {
  Script script({"", "", "", "my file"});
  script.Writer().AddPicture(0, {PictureType::kJpeg, "", "J", 1500, 7, "<x>"});
  script.Writer().AddPicture(1, {PictureType::kOther, "WMF", "", 0, 0, ""});
  script.Run(RunKind::kPicture, 0).Run(RunKind::kPicture, 1).Run(RunKind::kPicture, 2).Par();
  const std::string html = script.Page().html;
  EXPECT_NE(html.find("<p><img src=\"my%20file_1.jpg\" width=\"100\" height=\"1\" "
                      "alt=\"&lt;x&gt;\">"
                      "<span class=\"left-out\">[Picture left out: WMF]</span></p>"),
            std::string::npos)
      << html;
}

}  // namespace
}  // namespace tagsmith::rtf
