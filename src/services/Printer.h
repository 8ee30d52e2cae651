#pragma once

#include <cstddef>

#include "services/TextPane.h"
#include "services/Units.h"

namespace tagsmith {

/// The printer that the user has chosen, in twips. Every call throws `Error` when the printer
/// fails.
class Printer {
 public:
  virtual ~Printer() = default;

  /// The size of the paper.
  virtual Twips Width() const = 0;
  virtual Twips Height() const = 0;
  /// How far the printable area starts from the paper's left and top edge.
  virtual Twips OffsetX() const = 0;
  virtual Twips OffsetY() const = 0;

  /// Opens the job with its first page.
  virtual void StartDoc() = 0;
  /// Paints the text of `pane` from byte `first` into `area`, which counts from the corner of the
  /// printable area, with the pane's font and without colours. Gives the position of the first
  /// character that did not fit: the length of the text when all did.
  virtual std::size_t RenderPage(const TextPane& pane, std::size_t first,
                                 const TwipsRect& area) = 0;
  virtual void NewPage() = 0;
  /// Commits the job.
  virtual void EndDoc() = 0;
};

}  // namespace tagsmith
