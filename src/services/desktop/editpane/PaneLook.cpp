#include "services/desktop/editpane/PaneLook.h"

#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "services/desktop/editpane/PaneColours.h"
#include "services/desktop/editpane/PaneWords.h"

namespace tagsmith {
namespace {

using Sci = QsciScintilla;
using Html = QsciLexerHTML;

constexpr unsigned long kNumberMargin = 0;
constexpr int kFewestDigits = 3;

// The styles `first` to `last` of the page lexer.
struct StyleRun {
  int first;
  int last;
  Token token;
};

constexpr std::array kStyleRuns = {
    StyleRun{Html::Tag, Html::UnknownTag, Token::kTag},
    StyleRun{Html::Attribute, Html::UnknownAttribute, Token::kAttribute},
    StyleRun{Html::HTMLNumber, Html::HTMLNumber, Token::kNumber},
    StyleRun{Html::HTMLDoubleQuotedString, Html::HTMLSingleQuotedString, Token::kString},
    StyleRun{Html::OtherInTag, Html::OtherInTag, Token::kTag},
    StyleRun{Html::HTMLComment, Html::HTMLComment, Token::kComment},
    StyleRun{Html::Entity, Html::Entity, Token::kEntity},
    StyleRun{Html::XMLTagEnd, Html::XMLTagEnd, Token::kTag},
    StyleRun{Html::XMLStart, Html::XMLEnd, Token::kDelimiter},
    StyleRun{Html::Script, Html::Script, Token::kTag},
    StyleRun{Html::ASPAtStart, Html::ASPStart, Token::kDelimiter},
    StyleRun{Html::PHPStart, Html::PHPStart, Token::kDelimiter},
    StyleRun{Html::HTMLValue, Html::HTMLValue, Token::kString},
    StyleRun{Html::ASPXCComment, Html::ASPXCComment, Token::kComment},
    StyleRun{Html::SGMLDefault, Html::SGMLCommand, Token::kDelimiter},
    StyleRun{Html::SGMLParameter, Html::SGMLParameter, Token::kAttribute},
    StyleRun{Html::SGMLDoubleQuotedString, Html::SGMLSingleQuotedString, Token::kString},
    StyleRun{Html::SGMLError, Html::SGMLSpecial, Token::kDelimiter},
    StyleRun{Html::SGMLEntity, Html::SGMLEntity, Token::kEntity},
    StyleRun{Html::SGMLComment, Html::SGMLParameterComment, Token::kComment},
    StyleRun{Html::JavaScriptComment, Html::JavaScriptCommentDoc, Token::kComment},
    StyleRun{Html::JavaScriptNumber, Html::JavaScriptNumber, Token::kNumber},
    StyleRun{Html::JavaScriptKeyword, Html::JavaScriptKeyword, Token::kKeyword},
    StyleRun{Html::JavaScriptDoubleQuotedString, Html::JavaScriptSingleQuotedString,
             Token::kString},
    StyleRun{Html::JavaScriptUnclosedString, Html::JavaScriptRegex, Token::kString},
    StyleRun{Html::ASPJavaScriptComment, Html::ASPJavaScriptCommentDoc, Token::kComment},
    StyleRun{Html::ASPJavaScriptNumber, Html::ASPJavaScriptNumber, Token::kNumber},
    StyleRun{Html::ASPJavaScriptKeyword, Html::ASPJavaScriptKeyword, Token::kKeyword},
    StyleRun{Html::ASPJavaScriptDoubleQuotedString, Html::ASPJavaScriptSingleQuotedString,
             Token::kString},
    StyleRun{Html::ASPJavaScriptUnclosedString, Html::ASPJavaScriptRegex, Token::kString},
    StyleRun{Html::VBScriptComment, Html::VBScriptComment, Token::kComment},
    StyleRun{Html::VBScriptNumber, Html::VBScriptNumber, Token::kNumber},
    StyleRun{Html::VBScriptKeyword, Html::VBScriptKeyword, Token::kKeyword},
    StyleRun{Html::VBScriptString, Html::VBScriptString, Token::kString},
    StyleRun{Html::VBScriptUnclosedString, Html::VBScriptUnclosedString, Token::kString},
    StyleRun{Html::ASPVBScriptComment, Html::ASPVBScriptComment, Token::kComment},
    StyleRun{Html::ASPVBScriptNumber, Html::ASPVBScriptNumber, Token::kNumber},
    StyleRun{Html::ASPVBScriptKeyword, Html::ASPVBScriptKeyword, Token::kKeyword},
    StyleRun{Html::ASPVBScriptString, Html::ASPVBScriptString, Token::kString},
    StyleRun{Html::ASPVBScriptUnclosedString, Html::ASPVBScriptUnclosedString, Token::kString},
    StyleRun{Html::PHPDoubleQuotedString, Html::PHPSingleQuotedString, Token::kString},
    StyleRun{Html::PHPKeyword, Html::PHPKeyword, Token::kKeyword},
    StyleRun{Html::PHPNumber, Html::PHPNumber, Token::kNumber},
    StyleRun{Html::PHPVariable, Html::PHPVariable, Token::kVariable},
    StyleRun{Html::PHPComment, Html::PHPCommentLine, Token::kComment},
    StyleRun{Html::PHPDoubleQuotedVariable, Html::PHPDoubleQuotedVariable, Token::kVariable},
};

constexpr unsigned long Style(int style) { return static_cast<unsigned long>(style); }

void ColourStyles(Sci& pane, const PaneColours& colours) {
  const auto colour = [&colours](Token token) {
    return colours.tokens.at(static_cast<std::size_t>(token));
  };
  for (const StyleRun& run : kStyleRuns) {
    for (int style = run.first; style <= run.last; ++style) {
      pane.SendScintilla(Sci::SCI_STYLESETFORE, Style(style), colour(run.token));
    }
  }
  pane.SendScintilla(Sci::SCI_STYLESETFORE, Style(Sci::STYLE_LINENUMBER), colours.marginText);
  pane.SendScintilla(Sci::SCI_STYLESETBACK, Style(Sci::STYLE_LINENUMBER), colours.marginBackground);
}

void ColourMarks(Sci& pane, const PaneColours& colours) {
  pane.SendScintilla(Sci::SCI_SETCARETFORE, colours.caret);
  pane.SendScintilla(Sci::SCI_SETCARETLINEBACK, colours.currentLine);
  pane.SendScintilla(Sci::SCI_SETSELBACK, 1UL, colours.selection);
  pane.SendScintilla(Sci::SCI_INDICSETFORE, kMatchIndicator, colours.match);
  pane.SendScintilla(Sci::SCI_INDICSETFORE, kStrikeIndicator, colours.tokens.front());
}

void PrepareLexer(Sci& pane) {
  pane.SendScintilla(Sci::SCI_SETLEXERLANGUAGE, "hypertext");
  // Server code is VBScript where the page does not name another language.
  pane.SendScintilla(Sci::SCI_SETPROPERTY, "asp.default.language", "2");
  for (const PaneWords& words : PaneWordSets()) {
    pane.SendScintilla(Sci::SCI_SETKEYWORDS, std::uintptr_t{words.set}, words.words);
  }
}

void PrepareIndicators(Sci& pane) {
  constexpr float kOpaque = 255;
  constexpr long kFrame = 160;
  pane.SendScintilla(Sci::SCI_INDICSETSTYLE, kStrikeIndicator, long{Sci::INDIC_STRIKE});
  pane.SendScintilla(Sci::SCI_INDICSETSTYLE, kMatchIndicator, long{Sci::INDIC_STRAIGHTBOX});
  pane.SendScintilla(Sci::SCI_INDICSETALPHA, kMatchIndicator, std::lround(kMatchTint * kOpaque));
  pane.SendScintilla(Sci::SCI_INDICSETOUTLINEALPHA, kMatchIndicator, kFrame);
  pane.SendScintilla(Sci::SCI_INDICSETUNDER, kMatchIndicator, 1L);
  pane.SendScintilla(Sci::SCI_BRACEHIGHLIGHTINDICATOR, 1UL, long{kMatchIndicator});
}

}  // namespace

void PreparePane(QsciScintilla& pane) {
  pane.setUtf8(true);
  PrepareLexer(pane);
  PrepareIndicators(pane);

  pane.setMarginLineNumbers(kNumberMargin, true);
  pane.setMarginWidth(1, 0);
  constexpr long kTextMargin = 4;
  pane.SendScintilla(Sci::SCI_SETMARGINLEFT, 0UL, kTextMargin);
  pane.SendScintilla(Sci::SCI_SETCARETLINEVISIBLE, 1UL, 0L);
  pane.setBraceMatching(Sci::SloppyBraceMatch);
  // An unmatched bracket is nothing wrong in running text.
  pane.SendScintilla(Sci::SCI_BRACEBADLIGHTINDICATOR, 0UL, 0L);

  pane.setWrapMode(Sci::WrapNone);
  pane.SendScintilla(Sci::SCI_SETSCROLLWIDTHTRACKING, 1UL, 0L);
  pane.SendScintilla(Sci::SCI_SETSCROLLWIDTH, 1UL, 0L);
  pane.SendScintilla(Sci::SCI_SETMULTIPLESELECTION, 0UL, 0L);
  pane.SendScintilla(Sci::SCI_SETRECTANGULARSELECTIONMODIFIER, 0UL, 0L);
  pane.SendScintilla(Sci::SCI_SETMODEVENTMASK,
                     static_cast<unsigned long>(Sci::SC_MOD_INSERTTEXT | Sci::SC_MOD_DELETETEXT),
                     0L);
}

void SetStyleFont(QsciScintillaBase& pane, unsigned long style, const FontSpec& font) {
  constexpr double kSmallest = 1;
  constexpr double kLargest = 500;
  const double size = std::clamp(font.size, kSmallest, kLargest);
  pane.SendScintilla(Sci::SCI_STYLESETFONT, style, font.name.c_str());
  pane.SendScintilla(Sci::SCI_STYLESETSIZEFRACTIONAL, style,
                     std::lround(size * int{Sci::SC_FONT_SIZE_MULTIPLIER}));
  pane.SendScintilla(Sci::SCI_STYLESETBOLD, style, long{font.bold});
  pane.SendScintilla(Sci::SCI_STYLESETITALIC, style, long{font.italic});
  pane.SendScintilla(Sci::SCI_STYLESETUNDERLINE, style, long{font.underline});
  pane.SendScintilla(Sci::SCI_STYLESETEOLFILLED, style, 0L);
}

void DressPane(QsciScintilla& pane, const PaneColours& colours, const FontSpec& font) {
  // Clearing copies the default style, font and all, into every other.
  SetStyleFont(pane, Style(Sci::STYLE_DEFAULT), font);
  pane.SendScintilla(Sci::SCI_STYLESETFORE, Style(Sci::STYLE_DEFAULT), colours.tokens.front());
  pane.SendScintilla(Sci::SCI_STYLESETBACK, Style(Sci::STYLE_DEFAULT), colours.background);
  pane.SendScintilla(Sci::SCI_STYLECLEARALL);
  ColourStyles(pane, colours);
  ColourMarks(pane, colours);
  FitLineNumberMargin(pane);
}

void ColourSelectedText(QsciScintilla& pane, const PaneColours& colours, bool ownsPrimary) {
  const QColor onGrey = Qt::black;
  pane.SendScintilla(Sci::SCI_SETSELFORE, 1UL, ownsPrimary ? colours.selectedText : onGrey);
}

void FitLineNumberMargin(QsciScintilla& pane) {
  const auto digits = static_cast<int>(std::to_string(pane.lines()).size());
  const std::string widest(static_cast<std::size_t>(std::max(digits, kFewestDigits) + 1), '9');
  const long width =
      pane.SendScintilla(Sci::SCI_TEXTWIDTH, std::uintptr_t{Sci::STYLE_LINENUMBER}, widest.c_str());
  if (width == pane.SendScintilla(Sci::SCI_GETMARGINWIDTHN, kNumberMargin)) return;
  pane.SendScintilla(Sci::SCI_SETMARGINWIDTHN, kNumberMargin, width);
}

void FillIndicator(QsciScintilla& pane, unsigned indicator, const TextSpan& span) {
  pane.SendScintilla(Sci::SCI_SETINDICATORCURRENT, static_cast<unsigned long>(indicator));
  pane.SendScintilla(Sci::SCI_INDICATORFILLRANGE, static_cast<unsigned long>(span.start),
                     static_cast<long>(span.length));
}

void ClearIndicator(QsciScintilla& pane, unsigned indicator, const TextSpan& span) {
  pane.SendScintilla(Sci::SCI_SETINDICATORCURRENT, static_cast<unsigned long>(indicator));
  pane.SendScintilla(Sci::SCI_INDICATORCLEARRANGE, static_cast<unsigned long>(span.start),
                     static_cast<long>(span.length));
}

}  // namespace tagsmith
