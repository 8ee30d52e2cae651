#include "toolbars/catalogs/Catalogs.h"

namespace tagsmith::toolbars {
namespace {

constexpr std::string_view kSpacesAndComments[] = {
    "&nbsp;",
    "<!--   -->",
};

constexpr std::string_view kDocumentTextAndBlockTags[] = {
    "<HTML></HTML>",
    "<BODY></BODY>",
    "<HR>",
    "<BR>",
    "<BLOCKQUOTE></BLOCKQUOTE>",
    "<HEAD></HEAD>",
    "<TITLE></TITLE>",
    "<ADDRESS></ADDRESS>",
    "<BASE></BASE>",
    "<BGSOUND></BGSOUND>",
    "<A HREF=></A>",
    "<A NAME=></A>",
    "<META HTTP-EQUIV=REFRESH CONTENT=5; URL=New Location></META>",
    "<META></META>",
    "<CENTER></CENTER>",
    "<BASEFONT></BASEFONT>",
    "<FONT Face=Font Color=Color></FONT>",
    "<FONT></FONT>",
    "<COMMENT></COMMENT>",
    "<DFN></DFN>",
    "<DIV></DIV>",
    "<H1></H1>",
    "<H2></H2>",
    "<H3></H3>",
    "<H4></H4>",
    "<H5></H5>",
    "<H6></H6>",
    "<LISTING></LISTING>",
    "<LAYER></LAYER>",
    "<LAYER Name=LayerName></LAYER>",
    "<MARQUEE></MARQUEE>",
    "<NOBR></NOBR>",
    "<P></P>",
    "<PLAINTEXT></PLAINTEXT>",
    "<PRE></PRE>",
    "<WBR></WBR>",
    "<XMP></XMP>",
};

constexpr std::string_view kCharacterEntities[] = {
    "&quot;", "&lt;", "&gt;", "&amp;", "&reg;", "&copy;",
};

constexpr std::string_view kFormsTablesAndFrames[] = {
    "<FORM></FORM>",     "<INPUT></INPUT>",       "<TABLE></TABLE>",   "<CAPTION></CAPTION>",
    "<SELECT></SELECT>", "<TEXTAREA></TEXTAREA>", "<OPTION></OPTION>", "<FRAMESET></FRAMESET>",
    "<FRAME></FRAME>",   "<NOFRAMES></NOFRAMES>",
};

constexpr std::string_view kImagesAndImageMaps[] = {
    "<IMG></IMG>",
    "<AREA></AREA>",
    "<MAP></MAP>",
};

constexpr std::string_view kTextStyles[] = {
    "<CITE></CITE>", "<CODE></CODE>",     "<VAR></VAR>",     "<TT></TT>",       "<KBD></KBD>",
    "<EM></EM>",     "<STRONG></STRONG>", "<B></B>",         "<I></I>",         "<U></U>",
    "<SAMP></SAMP>", "<BIG></BIG>",       "<BLINK></BLINK>", "<SMALL></SMALL>", "<STRIKE></STRIKE>",
    "<SUB></SUB>",   "<SUP></SUP>",
};

constexpr std::string_view kLists[] = {
    "<DIR></DIR>", "<DL></DL>", "<DD></DD>", "<DT></DT>",
    "<OL></OL>",   "<UL></UL>", "<LI></LI>", "<MENU></MENU>",
};

constexpr std::string_view kTableParts[] = {
    "<COL></COL>", "<COLGROUP></COLGROUP>", "<TBODY></TBODY>", "<TD></TD>", "<TH></TH>",
    "<TR></TR>",   "<TFOOT></TFOOT>",       "<THEAD></THEAD>",
};

constexpr CatalogFamily kFamilies[] = {
    {"spaces and comments", kSpacesAndComments},
    {"document, text and block tags", kDocumentTextAndBlockTags},
    {"character entities", kCharacterEntities},
    {"forms, tables and frames", kFormsTablesAndFrames},
    {"images and image maps", kImagesAndImageMaps},
    {"text styles", kTextStyles},
    {"lists", kLists},
    {"table parts", kTableParts},
};

}  // namespace

Catalog TagCatalog() { return kFamilies; }

}  // namespace tagsmith::toolbars
