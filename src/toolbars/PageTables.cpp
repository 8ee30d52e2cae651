#include "toolbars/PageTables.h"

namespace tagsmith::toolbars {
namespace {

/// Widths that hold the longest usual entry.
constexpr Twips kWideCatalog = 4500;
constexpr Twips kNarrowCatalog = 3600;
constexpr Twips kLevelWidth = 900;

using View = std::string_view;

constexpr Tool Picture(View name, View toolTip) { return {.name = name, .toolTip = toolTip}; }

constexpr Tool Caption(View name, View face, View toolTip) {
  return {.name = name, .toolTip = toolTip, .face = face, .kind = ToolKind::kCaptionButton};
}

/// Its tool tip follows what the user lays on it.
constexpr Tool UserButton(int index, View face) {
  return {.name = "cmdUD", .face = face, .index = index, .kind = ToolKind::kCaptionButton};
}

constexpr Tool Insert(View name, View toolTip) {
  return {.name = name, .toolTip = toolTip, .kind = ToolKind::kInsertButton};
}

constexpr Tool List(View name, View toolTip, Twips width) {
  return {.name = name, .toolTip = toolTip, .width = width, .kind = ToolKind::kSortedList};
}

constexpr Tool Combo(View name, View toolTip, Twips width) {
  return {.name = name, .toolTip = toolTip, .width = width, .kind = ToolKind::kSortedCombo};
}

constexpr Tool Levels(View name, View toolTip, Twips width) {
  Tool tool = Combo(name, toolTip, width);
  tool.face = "H1";
  tool.kind = ToolKind::kCombo;
  return tool;
}

constexpr Tool NewGroup(Tool tool) {
  tool.newGroup = true;
  return tool;
}

constexpr Tool kDialogsPage[] = {
    Picture("cmdEasyBegin", "Jump Start"),
    Picture("cmdFastColor", "Color Dialog"),
    Picture("cmdFastAnchor", "Anchor Dialog"),
    Picture("cmdFastList", "List Dialog"),
    Picture("cmdFastImage", "Image Dialog"),
    Picture("cmdFastLine", "Line Dialog"),
    Picture("cmdFastTable", "Table Dialog"),
    Picture("cmdFastMail", "Mail Dialog"),
    Picture("cmdMarquee", "IE Marquee"),
    Picture("cmdComment", "Comment Dialog"),
    Picture("cmdFrameDialog", "Frame Dialog"),
    Picture("cmdDirDialog", "Directory Replace Dialog"),
    Picture("cmdLowerCase", "Convert Filenames To Lower Case Dialog"),
    Picture("cmdFileManDialog", "File Management Dialog"),
    Picture("cmdRTFDialog", "RTF to HTML Conversion Dialog"),
    Picture("cmdJSMenu", "JavaScript Menu Dialog"),
};

constexpr Tool kFormattingPage[] = {
    Picture("cmdBold", "Bold"),
    Picture("cmdItallic", "Itallic"),
    Picture("cmdUnderline", "Underline"),
    NewGroup(Picture("cmdTitle", "Title")),
    Picture("cmdParagraph", "Paragraph"),
    Picture("cmdBR", "Line Break"),
    NewGroup(Picture("cmdLeft", "Left Align")),
    Picture("cmdCenter", "Center Align"),
    Picture("cmdRight", "Right Align"),
    NewGroup(Picture("cmdPRE", "PreFormatted Text")),
    NewGroup(Picture("cmdHRTag", "HR - Horizontal Line")),
    NewGroup(Picture("cmdEM", "Emphasis")),
    Picture("cmdStrong", "Strong Emphasis"),
    NewGroup(Picture("cmdSub", "SubScript")),
    Picture("cmdSup", "SuperScript"),
    NewGroup(Levels("cboHeadings", "Headings 1 to 6", kLevelWidth)),
};

constexpr Tool kFontsFramesFormsPage[] = {
    Picture("cmdFontColor", "Font Color"),
    Picture("cmdFontFace", "Font Face"),
    Picture("cmdFontUp", "Font Size Up One"),
    Picture("cmdFontDown", "Font Size Down One"),
    NewGroup(Picture("cmdForm", "New Form")),
    NewGroup(Picture("cmdButton", "Command Button")),
    Picture("cmdTextbox", "TextBox"),
    Picture("cmdPassword", "Password"),
    Picture("cmdHidden", "Hidden"),
    Picture("cmdTextArea", "TextArea"),
    Picture("cmdRadio", "Radio Button"),
    Picture("cmdCheckBox", "CheckBox"),
    Picture("cmdSelect", "Select"),
    NewGroup(Picture("cmdFrameset", "Frame Set")),
    Picture("cmdFrame", "Frame"),
    Picture("cmdNoFrame", "No Frame"),
};

constexpr Tool kListsTablesPage[] = {
    Picture("cmdOL", "Ordered List"),
    Picture("cmdUL", "Unordered List"),
    Picture("cmdDL", "Definition List"),
    NewGroup(Picture("cmdLI", "List Item")),
    NewGroup(Picture("cmdDT", "Definition Term")),
    Picture("cmdDD", "Definition"),
    NewGroup(Picture("cmdCaption", "Table Caption")),
    NewGroup(Picture("cmdTableTag", "New Table")),
    NewGroup(Picture("cmdTR", "Table Row")),
    Picture("cmdTH", "Table Heading"),
    Picture("cmdTD", "Table Data"),
};

constexpr Tool kAllTagsPage[] = {
    List("cboTags", "", kWideCatalog),
    Insert("cmdInsert", "Insert Current Tag"),
};

constexpr Tool kDhtmlPage[] = {
    Combo("cboDHTML", "All DHTML Objects and Properties", kWideCatalog),
    Insert("cmdDHTMLInsert", "Insert"),
};

constexpr Tool kCssPage[] = {
    Picture("cmdCSSLink", "CSS Link Tag"),
    Caption("cmdStyle", "S", "<STYLE></STYLE>"),
    Caption("cmdCSSImport", "@", "@ Import"),
    Caption("cmdDIVStyle", "Div", "<DIV Style></DIV>"),
    NewGroup(Combo("cboCSS", "All CSS Family Members", kWideCatalog)),
    Insert("cmdCSSInsert", ""),
};

constexpr Tool kJavaScriptPage[] = {
    Picture("cmdJavaScript", "JavaScript"),
    Picture("cmdJSDate", "Inserts JavaScript Date"),
    Picture("cmdJSTime", "Inserts JavaScript Time"),
    Picture("cmdJSFormVal", "JavaScript Form Control Validation"),
    Caption("cmdJSComments", "//", "Multiline Comments"),
    Picture("cmdJSStatusScroll", "Status Bar Scrolling Text"),
    Picture("cmdJSAd", "Random Ad Rotation"),
};

constexpr Tool kCfmlPage[] = {
    Picture("cmdCFOUTPUT", "CFOUTPUT"),    Caption("cmdCFIf", "IF", "CFIF"),
    Caption("cmdNumSign", "#", "# ... #"), Picture("cmdCFQuery", "CF Query"),
    Picture("cmdCFTable", "CF Table"),     Picture("cmdCFParam", "CF Parameter"),
    Picture("cmdCFInsert", "CF Insert"),   Picture("cmdCFUpdate", "CF Update"),
    Picture("cmdAbort", "CF Abort"),       Picture("cmdCFReport", "CF Report"),
    Picture("cmdCFExit", "CF Exit"),       Picture("cmdCFCookie", "CF Cookie"),
    Picture("cmdCFFile", "CF File"),
};

constexpr Tool kVbScriptPage[] = {
    Picture("cmdVBScript", "Visual Basic Script"),
    Picture("cmdVBDate", "Inserts VBScript Date"),
    Picture("cmdVBTime", "Inserts VBScript Time"),
    Picture("cmdVBFormVal", "VBScript Form Control Validation"),
};

constexpr Tool kPhpPage[] = {
    Caption("cmdPHPOpening", "<?", "<?  ?>"),
    Caption("cmdPHPPrint", "P", "Print ()"),
    Caption("cmdPHPComment", "//", "Multiline Comments"),
    Caption("cmdPHPFunction", "{ }", "PHP Function"),
    Caption("cmdPHPIF", "IF", "PHP If...Then...Else"),
    Caption("cmdPHPCheckBrowser", "B?", "Which Browser Is Being Used"),
    Caption("cmdPHPLM", "M", "Gets Last Modified Date"),
    Caption("cmdCopyINC", "inc", "Copy html_class.inc To Current Directory"),
    Picture("cmdPHPDataDialog", "PHP Database Dialog"),
    NewGroup(Combo("cboHTMLClass", "", kNarrowCatalog)),
    Insert("cmdInsertHTMLClass", "Insert HTML_Class Statments"),
};

constexpr Tool kAspPage[] = {
    Picture("cmdASPScript", "ASP Script Tag"),
    Caption("cmdASPInserts", "%", "ASP Insert Symbols"),
    Caption("cmdASPInsertEquals", "%=", "ASP Insert Variable"),
    Caption("cmdInclude", "#", "ASP Include"),
    NewGroup(List("cboASP", "", kNarrowCatalog)),
    Insert("cmdASPDropIn", "Insert ASP"),
};

constexpr Tool kUserPage[] = {
    UserButton(0, "1"), UserButton(1, "2"),  UserButton(2, "3"), UserButton(3, "4"),
    UserButton(4, "5"), UserButton(5, "6"),  UserButton(6, "7"), UserButton(7, "8"),
    UserButton(8, "9"), UserButton(9, "10"),
};

constexpr ToolPage kPages[] = {
    {"MyTab", 0, kDialogsPage},
    {"MyTab", 1, kFormattingPage},
    {"MyTab", 2, kFontsFramesFormsPage},
    {"MyTab", 3, kListsTablesPage},
    {"MyTab", 4, kAllTagsPage},
    {"MyTab", 5, kDhtmlPage},
    {"MyTab", 6, kCssPage},
    {"MyTabScript", 0, kJavaScriptPage},
    {"MyTabScript", 1, kCfmlPage},
    {"MyTabScript", 2, kVbScriptPage},
    {"MyTabScript", 3, kPhpPage},
    {"MyTabScript", 4, kAspPage},
    {"MyTabScript", 5, kUserPage},
};

}  // namespace

std::span<const ToolPage> ToolPages() { return kPages; }

}  // namespace tagsmith::toolbars
