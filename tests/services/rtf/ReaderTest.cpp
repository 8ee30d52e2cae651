// What a file in Rich Text Format says, told piece by piece.

#include "services/rtf/Reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {
namespace {

std::string Hex(Colour colour) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text = "#";
  for (int shift = 20; shift >= 0; shift -= 4) text += kDigits[(colour >> shift) & 0xF];
  return text;
}

// Writes what it is told as one text, a line for a paragraph. A run's looks stand in brackets
// before it, as far as they are not the usual ones.
class Recorder : public DocumentSink {
 public:
  void Begin() override { EXPECT_TRUE(text_.empty()); }
  void SetTitle(std::string_view title) override { Line("title " + std::string(title)); }
  void AddFont(int number, std::string_view name, std::string_view family) override {
    EXPECT_EQ(number, fonts_++);
    Line("font " + std::string(name) + "," + std::string(family));
  }
  void AddLink(int number, std::string_view target) override {
    EXPECT_EQ(number, static_cast<int>(links_.size()));
    links_.emplace_back(target);
  }
  void AddPicture(int number, Picture&& picture) override {
    EXPECT_EQ(number, pictures_++);
    Line("picture " + std::string(picture.kind) + "[" + picture.bytes + "] " +
         std::to_string(picture.width) + "x" + std::to_string(picture.height) + " " +
         picture.description);
  }
  void AddParagraph(const Paragraph& paragraph) override {
    Line(Format(paragraph.format) + ":" + Runs(paragraph));
  }
  void EndCell(int depth) override { Line("cell" + std::to_string(depth)); }
  void EndRow(int depth, const RowFormat& format) override {
    Line("row" + std::to_string(depth) + Row(format));
  }
  void BeginNote(int number) override {
    EXPECT_FALSE(isInNote_);
    isInNote_ = true;
    Line("note" + std::to_string(number));
  }
  void EndNote() override {
    EXPECT_TRUE(isInNote_);
    isInNote_ = false;
    Line("end");
  }
  void End() override { EXPECT_FALSE(std::exchange(isEnded_, true)); }

  const std::string& Text() const { return text_; }
  bool IsEnded() const { return isEnded_; }

 private:
  void Line(const std::string& line) { text_ += line + "\n"; }

  static std::string Format(const ParagraphFormat& format) {
    std::string text = "p";
    const auto add = [&text](const char* name, int value) {
      if (value != 0) text += " " + std::string(name) + std::to_string(value);
    };
    add("align", static_cast<int>(format.alignment));
    add("rtl", format.rightToLeft ? 1 : 0);
    add("left", format.leftIndent);
    add("right", format.rightIndent);
    add("first", format.firstLineIndent);
    add("before", format.spaceBefore);
    add("after", format.spaceAfter);
    add("h", format.heading);
    add("depth", format.tableDepth);
    add("page", format.pageBreakBefore ? 1 : 0);
    if (format.background != kAbsent) text += " " + Hex(format.background);
    if (format.list.list != kAbsent) {
      text += " list" + std::to_string(format.list.list) + "." + std::to_string(format.list.level) +
              "." + "*1IiAa-"[static_cast<int>(format.list.numbering)] +
              std::to_string(format.list.start);
    }
    return text;
  }

  std::string Runs(const Paragraph& paragraph) const {
    std::string text;
    std::string last;
    for (const Run& run : paragraph.runs) {
      if (run.kind != RunKind::kBookmark && run.kind != RunKind::kNote) {
        const std::string looks = Looks(run.format);
        if (looks != last) text += "[" + looks + "]";
        last = looks;
      }
      text += Content(paragraph, run);
    }
    return text;
  }

  static std::string Content(const Paragraph& paragraph, const Run& run) {
    std::string part = paragraph.text.substr(run.start, run.length);
    switch (run.kind) {
      case RunKind::kText:
        return part;
      case RunKind::kTab:
        return "<tab>";
      case RunKind::kLineBreak:
        return "<line>";
      case RunKind::kBookmark:
        return "<at " + part + ">";
      default:
        return (run.kind == RunKind::kNote ? "<note" : "<picture") + std::to_string(run.number) +
               ">";
    }
  }

  std::string Looks(const CharacterFormat& format) const {
    std::string text;
    if (format.bold) text += 'b';
    if (format.italic) text += 'i';
    if (format.underline) text += 'u';
    if (format.strike) text += 's';
    if (format.smallCaps) text += 'c';
    if (format.allCaps) text += 'C';
    if (format.raise != Raise::kNone) text += format.raise == Raise::kSuper ? '^' : '_';
    if (format.font != kAbsent) text += "f" + std::to_string(format.font);
    if (format.halfPoints != 24) text += std::to_string(format.halfPoints);
    if (format.colour != kAbsent) text += Hex(format.colour);
    if (format.background != kAbsent) text += "on" + Hex(format.background);
    if (format.link != kAbsent) text += "->" + links_.at(static_cast<std::size_t>(format.link));
    return text;
  }

  static std::string Row(const RowFormat& format) {
    std::string text;
    if (format.isHeader) text += " head";
    if (format.leftEdge != 0) text += " left" + std::to_string(format.leftEdge);
    if (format.alignment != Alignment::kLeft) text += " centred";
    for (const CellFormat& cell : format.cells) {
      text += " " + std::to_string(cell.rightEdge);
      if (cell.across != Merge::kNone) text += cell.across == Merge::kFirst ? "(" : ")";
      if (cell.down != Merge::kNone) text += cell.down == Merge::kFirst ? "/" : "\\";
      if (cell.alignment != VerticalAlignment::kTop) text += "v";
      if (cell.background != kAbsent) text += Hex(cell.background);
      for (const Border& border : cell.borders) {
        if (!border.isThere) continue;
        text += "|" + std::to_string(border.width);
        if (border.colour != kAbsent) text += Hex(border.colour);
      }
    }
    return text;
  }

  std::string text_;
  std::vector<std::string> links_;
  int fonts_ = 0;
  int pictures_ = 0;
  bool isInNote_ = false;
  bool isEnded_ = false;
};

// Stands for the desktop's: shows what it was asked.
std::string Decode(int codePage, std::string_view bytes) {
  std::string text = "<" + std::to_string(codePage);
  for (const char byte : bytes) text += " " + std::to_string(static_cast<unsigned char>(byte));
  return text + ">";
}

std::string Told(std::string_view rtf) {
  Recorder recorder;
  ReadRtf(rtf, Decode, recorder);
  EXPECT_TRUE(recorder.IsEnded());
  return recorder.Text();
}

// Each case is a body, before which the same tables stand, and what is told of it.
void Expect(const std::vector<std::pair<std::string_view, std::string_view>>& cases) {
  const std::string head =
      R"({\rtf1\ansi{\colortbl;\red255\green0\blue0;\red0\green0\blue255;\red1\green2\blue3;})"
      R"({\stylesheet{Normal;}{\s1\b heading 1;})"
      R"({\s2\outlinelevel1 Titre;}{\s3\sbasedon2 Mine;}{\*\cs4 Heading 3;}{\s5 heading 2,H2;}})"
      R"({\*\listtable{\list{\listlevel\levelnfc0\levelnfcn0\levelstartat3{\leveltext\'02\'00.;}})"
      R"({\listlevel\levelnfc4}\listid70}{\list{\listlevel\levelnfc23}\listid71}})"
      R"({\*\listoverridetable{\listoverride\listid70\listoverridecount0\ls1})"
      R"({\listoverride\listid70{\lfolevel\listoverridestartat\levelstartat8}\ls2})"
      R"({\listoverride\listid71\ls3}{\listoverride\listid70\ls4}})";
  for (const auto& [body, expected] : cases) {
    EXPECT_EQ(Told(head + std::string(body) + "}"), expected) << body;
  }
}

TEST(RtfReader, BytesUnicodeAndSignsOfFontsBecomeText) {
  Expect({
      {R"(caf\'e9 \'80\\\{\})", "p:caf\u00E9 \u20AC\\{}\n"},
      {R"(\mac\'8e)", "p:\u00E9\n"},
      {R"(\u1046?\u1046 ?x)", "p:\u0416\u0416x\n"},
      {R"(\uc0\u1046 ?{\uc2\u1046 ab}\u1046 c)", "p:\u0416?\u0416\u0416c\n"},
      {R"(\uc2\u1046\'93\'fax\u1046 a{b})", "p:\u0416x\u0416b\n"},
      {"\\u1046\\bin3 }}}x\\u1046\\emdash y", "p:\u0416x\u0416y\n"},
      {R"(\u-10179?\u-8704?\u-10179?x\u-8704?)", "p:\U0001F600\uFFFDx\uFFFD\n"},
      {R"(a\~b\-c\_d\emdash\lquote x\rquote\|\:)", "p:a\u00A0b\u00ADc\u2011d\u2014\u2018x\u2019\n"},
      {"a\\tab b\\line c\td\\\ne\r\nf", "p:a<tab>b<line>c<tab>d\np:ef\n"},
      {R"(\ansicpg932\'93\'fa\'83A b\b\'93\b0\'fa)",
       "p:<932 147 250 131 65> b[b]<932 147>[]<932 250>\n"},
      {"\\ansicpg65001 \xC3\xA4\\'c3\\'a4\\'c3", "p:\u00E4\u00E4\uFFFD\n"},
      {R"(a\'zz\'4)", "p:azz4\n"},
      {R"(\ansicpg932 A\'83\\B\'83\{\'83\}\\)", "p:A<932 131 92>B<932 131 123><932 131 125>\\\n"},
      {R"(a\u9 ?b\'09c\u10 ?d\'0be\u13 ?f\u8 ?)", "p:a<tab>b<tab>c<line>d<line>e<line>f\n"},
      {R"(\deff4{\fonttbl{\f0\froman\fcharset204{\*\panose 02}Times{\*\falt Alt};})"
       R"({\f3\fnil\fcharset2 Symbol;}\f4\fswiss Arial;\f5\fmodern\'c9;{\f6\fcharset2 Webdings;}})"
       R"(x{\f0\'c6}{\f3 a\'b7\u-3913?}{\f6\'21}{\f99 y}{\plain\b z})"
       R"({\field{\*\fldinst SYMBOL 97 \\f "Symbol" \\s 10}{\fldrslt no}})",
       "font Times,serif\nfont Symbol,\nfont Arial,sans-serif\nfont \u00C9,monospace\n"
       "font Webdings,\n"
       "p:[f2]x[f0]\u0416[]\u03B1\u2022\u2022[f4]\uF021[]y[bf2]z[]\u03B1\n"},
  });
}

TEST(RtfReader, LooksAreThoseOfTheGroupAndOfTheParagraph) {
  Expect({
      {R"(a{\b b\i c\b0 d}e)", "p:a[b]b[bi]c[i]d[]e\n"},
      {R"(\uldb a\ulnone b\strike c\strike0\scaps d\scaps0\caps e)", "p:[u]a[]b[s]c[c]d[C]e\n"},
      {R"(\super a\nosupersub b\dn6 c\dn0 d\up2 e)", "p:[^]a[]b[_]c[]d[^]e\n"},
      {R"(\fs20\cf1 a\cf0 b\cf9 c\highlight2 d\chcbpat1 e\highlight0 f)",
       "p:[20#ff0000]a[20]bc[20on#0000ff]de[20on#ff0000]f\n"},
      {R"(a{\v hid\par}b{\deleted c}\plain d{\webhidden e})", "p:abd\n"},
      {R"({\b a}{\b b}{\*\unknown x{\par y}}\header z)", "p:[b]ab[]z\n"},
      {R"(\qc\li720\ri10\fi-360\sb120\sa60\cbpat3 a\par\pard b)",
       "p align2 left720 right10 first-360 before120 after60 #010203:a\np:b\n"},
      {R"(\s1 a\par\s2 b\par\s3 c\par\s4 d\par\s5 e\par\pard\outlinelevel7 f\par\outlinelevel9 g)",
       "p h1:a\np h2:b\np h2:c\np:d\np h2:e\np h6:f\np:g\n"},
      {R"(\rtlpar\qj a\par\ltrpar\pagebb\par)", "p align3 rtl1:a\np align3 page1:\n"},
      {R"(a\page b\par\sect\sectd\sbknone c\sect\sectd d)", "p:a\np page1:b\np:c\np page1:d\n"},
      {R"(a\column b\par\column c)", "p:a\np:b\np:c\n"},
  });
}

TEST(RtfReader, ListsCountWhereWordCounts) {
  Expect({
      {R"({\listtext 3.\tab}\ls1 a\par\ilvl1 b\par\ls4\ilvl0 c\par\ls2 d\par\ls3 e\par\ls9 f)",
       "p list0.0.13:a\np list0.1.a1:b\np list0.0.13:c\np list2.0.18:d\np list1.0.*1:e\np:f\n"},
      {R"({\pntext\'b7}{\*\pn\pnlvlblt{\pntxtb\'b7}}a{\footnote n}\par b\par\pard c\par)"
       R"({\pn\pnlvlbody\pnlcrm\pnstart4}d\par{\*\pn\pnlvlcont}e\par{\*\pn\pnlvl2\pnucltr}f)",
       "note1\np:n\nend\np list3.0.*1:a<note1>\np list3.0.*1:b\np:c\n"
       "p list4.0.i4:d\np list4.0.-1:e\np list4.1.A1:f\n"},
      {R"({\*\pn\pnlvlcont\ilvl0\ls0\pndec}a)", "p:a\n"},
      // Lists that are not described keep their marks.
      {R"({\listtext\b 3.\tab}\ls9 a\par{\pntext 4.\tab}\par{\listtext 5.}\cell b)",
       "p:[b]3.<tab>[]a\np:4.<tab>\ncell1\nrow1\np:b\n"},
  });
}

TEST(RtfReader, TablesStandInEachOther) {
  Expect({
      {R"(\trowd\trhdr\trleft-10\trqc\clmgf\clvertalc\clcbpat1)"
       R"(\clbrdrt\brdrs\brdrw20\brdrcf1\clbrdrb\brdrnone\cellx100\clmrg\clvmgf\cellx200)"
       R"(\pard\intbl a\cell b\par c\cell\row\pard d)",
       "p depth1:a\ncell1\np depth1:b\np depth1:c\ncell1\n"
       "row1 head left-10 centred 100(v#ff0000|20#ff0000 200)/\np:d\n"},
      {R"(\pard\intbl a\cell{\trowd\cellx50\row}\cell\row)",
       "p depth1:a\ncell1\nrow1 50\ncell1\nrow1 50\n"},
      {R"(\trowd\cellx9\pard\intbl x\par\pard\intbl\itap2 a\nestcell b\nestcell)"
       R"({\*\nesttableprops\trowd\cellx3\cellx5\nestrow}{\nonesttables\par}\pard\intbl\cell\row)",
       "p depth1:x\np depth2:a\ncell2\np depth2:b\ncell2\nrow2 3 5\ncell1\nrow1 9\n"},
      // Borders of the row, for cells that name none.
      {R"(\trowd\trbrdrt\brdrw1\trbrdrr\brdrw2\trbrdrb\brdrw3\trbrdrl\brdrw4\trbrdrv\brdrw5)"
       R"(\clbrdrt\brdrnone\cellx1\clbrdrl\brdrw9\cellx2\intbl a\row)"
       R"(\trowd\trbrdrh\brdrw6\clbrdrt\brdrw7\cellx1 b\row)",
       "p depth1:a\ncell1\nrow1 1|5|3|4 2|1|2|3|9\np depth1:b\ncell1\nrow1 1|7|6\n"},
      // Left open, or with paragraphs that are not marked as its own.
      {R"(\intbl\itap3 a\par\pard b\cell c)",
       "p depth3:a\ncell3\nrow3\ncell2\nrow2\np depth1:b\ncell1\nrow1\np:c\n"},
      {R"(\row a\row)", "p depth1:a\ncell1\nrow1\n"},
  });
}

TEST(RtfReader, FieldsBecomeLinksHeadersStayOutAndTheTitleIsTold) {
  Expect({
      {R"(a{\field{\*\fldinst{HYPERLINK "http://x/?a\\\\b" \\l "c d" \\o "tip"}}{\fldrslt\ul b}}c)",
       "p:a[u->http://x/?a\\b#c d]b[]c\n"},
      {R"({\field{\*\fldinst HYPERLINK \\l top}{\fldrslt{b}}}{\*\bkmkstart top}x{\*\bkmkend top}\par{\*\bkmkstart end})",
       "p:[->#top]b<at top>[]x\n"},
      {R"({\field{\*\fldinst HYPERLINK "{\field{\fldinst REF y}{\fldrslt z}}"}{\fldrslt b}}c)",
       "p:[->z]b[]c\n"},
      {R"({\field{\*\fldinst PAGE}{\fldrslt 7}}{\field{\fldinst SYMBOL 0x41}{\fldrslt x}})",
       "p:7A\n"},
      {R"({\fldinst lost}{\fldrslt kept}{\field{\fldinst HYPERLINK}{\fldrslt b}})", "p:keptb\n"},
      {R"({\info{\title A \'e9}{\author me}{\title B}}{\header c}x{\footer d}{\*\xe e})",
       "title A \u00E9\np:x\n"},
      {R"({\info{\upr{\title A?}{\*\ud{\title A\u1046 ?}}}}{\upr x}y{\title z})",
       "title A\u0416\np:y\n"},
  });
}

TEST(RtfReader, NotesBoxesAndPicturesComeOnceBeforeTheirParagraph) {
  Expect({
      {R"(a{\super\chftn{\footnote\pard\plain\chftn b\par c{\footnote d}}}e)",
       "note1\np:b\np:cd\nend\np:a<note1>e\n"},
      {R"(a{\super\chftn{\footnote{\super\chftn}  {\b  b} c\par d}} e)",
       "note1\np:[b]b[] c\np:d\nend\np:a<note1> e\n"},
      {R"(\trowd\cellx9\intbl a{\*\footnote\ftnalt{\trowd\intbl n\cell}}\cell\row)",
       "note1\np depth1:n\ncell1\nrow1\nend\np depth1:a<note1>\ncell1\nrow1 9\n"},
      {R"(\intbl a{\shp{\*\shpinst\shpleft1{\sp{\sn x}{\sv y}}{\shptxt\pard\intbl b\cell)"
       R"(\row\pard c\par}}{\shprslt no}}d\cell\row)",
       "p depth2:b\ncell2\nrow2\np depth1:c\np depth1:ad\ncell1\nrow1\n"},
      {"{\\*\\shppict{\\pict{\\*\\picprop{\\sp{\\sn wzDescription}{\\sv A cat}}}\\pngblip"
       "\\picwgoal200\\pichgoal100\\picscalex50 41\n4 2}}{\\nonshppict{\\pict\\wmetafile8 00}}",
       "picture [AB] 100x100 A cat\np:<picture0>\n"},
      {"{\\pict\\jpegblip\\picw96\\bin2 {}}{\\pict\\emfblip\\picw2540 41}",
       "picture [{}] 1440x0 \npicture EMF[] 1440x0 \np:<picture0><picture1>\n"},
      {R"({\object\objemb{\*\objdata 41}{\result{\pict\pngblip 41}}}{\v{\pict\pngblip 42}})",
       "picture [A] 0x0 \np:<picture0>\n"},
      {R"({\shp{\*\shpinst{\sp{\sn pib}{\sv{\pict\pngblip 41}}}{\sp{\sn wzDescription})"
       R"({\sv A cat}}}}\par{\pict\pngblip 42}{\sv{\pict\pngblip 43}})",
       "picture [A] 0x0 A cat\np:<picture0>\npicture [B] 0x0 \npicture [C] 0x0 \n"
       "p:<picture1><picture2>\n"},
      {R"({\shpgrp{\sp{\sn wzDescription}{\sv All}}{\shp{\shpinst{\sp{\sn pib}{\sv)"
       R"({\pict\pngblip 41}{\pict\pngblip 42}}}}}})",
       "picture [A] 0x0 \npicture [B] 0x0 \np:<picture0><picture1>\n"},
      {R"({\pict\pngblip}{\object{\*\objdata 41}}{\object{\result{\object 1}}}{\object{\result r}})",
       "picture empty picture[] 0x0 \npicture object[] 0x0 \npicture object[] 0x0 \n"
       "p:<picture0><picture1>1<picture2>r\n"},
  });
}

TEST(RtfReader, WhatIsNoRtfIsRefused) {
  for (const char* text : {"", "plain", "{\\rt", "\\rtf1 x"}) {
    Recorder recorder;
    EXPECT_THROW(ReadRtf(text, {}, recorder), NotRtf) << text;
  }
  EXPECT_EQ(Told("\xEF\xBB\xBF \r\n{\\rtf1 x"), "p:x\n");
}

// Every beginning of a file with a bit of all, and depths and counts out of all measure.
TEST(RtfReader, DamagedFilesGiveWhatCanBeRead) {
  const std::string_view whole =
      R"({\rtf1{\fonttbl{\f0 A;}}{\*\listtable{\list{\listlevel}\listid1}}{\info{\title t}}a)"
      R"({\field{\*\fldinst HYPERLINK "x"}{\fldrslt b{\footnote c{\shp{\*\shpinst{\shptxt d\cell}}}}}})"
      R"(\trowd\cellx1\intbl\itap2 e\nestcell{\*\nesttableprops\trowd\nestrow}\cell\row\u1046\'9)"
      R"({\pict\pngblip 414}{\pict\jpegblip\bin9999999999 x}})";
  for (std::size_t length = 5; length <= whole.size(); ++length) Told(whole.substr(0, length));

  const auto repeated = [](std::string_view piece, int times) {
    std::string text = "{\\rtf1 ";
    for (int i = 0; i < times; ++i) text += piece;
    return Told(text + "end");
  };
  EXPECT_EQ(repeated("{", 100'000), "p:end\n");
  EXPECT_EQ(repeated("{\\shp{\\shpinst{\\shptxt ", 100), "p:end\n");
  EXPECT_EQ(repeated("{\\b{\\field{\\fldinst", 1000), "");
  EXPECT_EQ(repeated("\\li99999999999\\fs-99999999999\\u99999999999 ?\\cf-1\\f-1\\itap-5 ", 2),
            "p left100000:[1]end\n");
  EXPECT_EQ(repeated("}", 3), "");
  EXPECT_EQ(Told("{\\rtf1 a\\bin9 b}"), "p:ab\n");
  EXPECT_EQ(Told("{\\rtf1 " + std::string(600, '{') + "a{\\*\\x b{c}d}e"), "p:ae\n");

  // A name is kept to 255 bytes, and none of its characters is cut.
  const std::string name(254, 'n');
  EXPECT_EQ(
      Told("{\\rtf1{\\fonttbl{\\f0 " + name + "\\'e9\\'e9;}}{\\*\\bkmkstart " + name + "bb}a"),
      "font " + name + ",\np:<at " + name + "b>[f0]a\n");
}

}  // namespace
}  // namespace tagsmith::rtf
