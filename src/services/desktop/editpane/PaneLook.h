#pragma once

#include "services/Units.h"
#include "services/desktop/editpane/TextSpan.h"

class QsciScintilla;
class QsciScintillaBase;

namespace tagsmith {

struct PaneColours;

/// What marks text in the pane, by the numbers of Scintilla's indicators.
constexpr unsigned kStrikeIndicator = 8;
constexpr unsigned kMatchIndicator = 9;

/// Sets up once what never changes: the page lexer with its words, margins, no wrapping, one plain
/// selection, no conversion of bytes.
void PreparePane(QsciScintilla& pane);

/// Gives one of the component's styles this font; strike-through it has none.
void SetStyleFont(QsciScintillaBase& pane, unsigned long style, const FontSpec& font);

/// Gives all styles the one font and each its colour.
void DressPane(QsciScintilla& pane, const PaneColours& colours, const FontSpec& font);

/// Colours the selected text for the background that the pane gives it: the desktop's while the
/// pane owns the primary selection, else a grey.
void ColourSelectedText(QsciScintilla& pane, const PaneColours& colours, bool ownsPrimary);

/// Makes the margin as wide as the highest line number needs.
void FitLineNumberMargin(QsciScintilla& pane);

/// Draws the indicator over a span that lies in the text, or takes it away there.
void FillIndicator(QsciScintilla& pane, unsigned indicator, const TextSpan& span);
void ClearIndicator(QsciScintilla& pane, unsigned indicator, const TextSpan& span);

}  // namespace tagsmith
