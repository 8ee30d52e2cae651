#pragma once

#include <QColor>
#include <array>
#include <cstddef>

class QPalette;

namespace tagsmith {

/// What a piece of a page is, as far as colours tell pieces apart.
enum class Token {
  kText,
  kTag,
  kAttribute,
  kString,
  kNumber,
  kComment,
  kEntity,
  kKeyword,
  kDelimiter,
  kVariable,
};
constexpr std::size_t kTokenCount = 10;

/// How much of the match colour lies under what it marks.
constexpr float kMatchTint = 0.15F;

/// The colours of the edit pane.
struct PaneColours {
  QColor background;
  QColor currentLine;
  QColor caret;
  QColor marginText;
  QColor marginBackground;
  QColor selection;
  QColor selectedText;
  QColor match;  ///< Frame and tint of what belongs to the place of the caret.
  std::array<QColor, kTokenCount> tokens;
};

/// How well two colours can be told apart: the contrast ratio of WCAG 2.1, section 1.4.3, from 1 to
/// 21.
double ContrastRatio(const QColor& left, const QColor& right);

/// Colours that fit a desktop, light or dark. The selection is the desktop's own; other text can be
/// read on its background, on the current line and where it is marked, with a contrast of at
/// least 4.5.
PaneColours ColoursFor(const QPalette& palette);

}  // namespace tagsmith
