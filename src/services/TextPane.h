#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "services/Units.h"

namespace tagsmith {

class DeviceContext;

/// One page of a text, to be drawn. Lengths in twips.
struct PageRequest {
  DeviceContext* render = nullptr;    ///< What the page is drawn on; null only measures.
  DeviceContext* measure = nullptr;   ///< What the text is laid out for.
  TwipsRect drawing;                  ///< Where the text goes, from the printable area's corner.
  TwipsRect page;                     ///< The printable area.
  std::size_t firstCharacter = 0;     ///< The byte that the page begins with.
  std::ptrdiff_t lastCharacter = -1;  ///< The byte before which it ends; -1 for the text's end.
};

/// What the user has done to a text pane, told by the live component when the event is done.
class TextPaneListener {
 public:
  virtual ~TextPaneListener() = default;

  /// The user has changed the text: by key, input method, drop, paste, undo. Told once an event.
  virtual void UserChanged() = 0;
  /// A key that makes a character is about to do so; false takes it away.
  virtual bool UserKeyPress(int keyAscii) = 0;
};

/// The live text component behind a `RichTextBox`: the text, one selection, one font, and undo.
/// Texts are UTF-8 and kept byte for byte, CR LF, lone CR or LF and NUL included. Positions are
/// byte offsets; one that falls into a character or between CR and LF counts as its start, one
/// behind the text as its end. The system's own calls tell the listener nothing.
class TextPane {
 public:
  virtual ~TextPane() = default;

  virtual void SetListener(TextPaneListener* listener) = 0;

  virtual std::string Text() const = 0;
  /// Replaces the whole text, as one undo step. The caret goes to the start.
  virtual void SetText(std::string_view text) = 0;
  /// The length of the text in bytes.
  virtual std::size_t Length() const = 0;
  virtual std::string TextRange(std::size_t start, std::size_t length) const = 0;

  virtual std::size_t SelStart() const = 0;
  virtual std::size_t SelLength() const = 0;
  /// Selects `length` bytes from `start`, or puts the caret there, and scrolls it into view.
  virtual void Select(std::size_t start, std::size_t length) = 0;
  /// Scrolls the whole selection into view for the user to see, also while an undo group is open,
  /// in which `Select` does not scroll.
  virtual void ShowSelection() = 0;
  /// Puts `text` in place of the selection, as one undo step; the caret stands behind it, nothing
  /// is selected.
  virtual void ReplaceSelection(std::string_view text) = 0;

  /// The 0-based line that holds a position. Lines end at CR LF, CR or LF; the position between CR
  /// and LF belongs to the line that they end.
  virtual std::size_t LineFromPosition(std::size_t position) const = 0;

  virtual FontSpec Font() const = 0;
  virtual void SetFont(const FontSpec& font) = 0;

  /// What is changed between these two is one undo step. They nest.
  virtual void BeginUndoGroup() = 0;
  virtual void EndUndoGroup() = 0;
  virtual void Undo() = 0;
  virtual void EmptyUndoHistory() = 0;

  /// Draws one page with the pane's font, black on white. Gives the position of the first character
  /// that did not fit: that of the text's end when all did.
  virtual std::size_t FormatRange(const PageRequest& request) = 0;
  /// Frees what `FormatRange` keeps from one page to the next.
  virtual void EndFormatting() = 0;
};

}  // namespace tagsmith
