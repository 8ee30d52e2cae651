#pragma once

#include "services/Units.h"

namespace tagsmith {

/// What a page is drawn on. The desktop that made it knows how to draw.
class DeviceContext {
 public:
  virtual ~DeviceContext() = default;
};

/// The printer that the user has chosen, in twips. Sizes and offsets may throw `Error`, the others
/// throw it when the printer fails.
class Printer {
 public:
  virtual ~Printer() = default;

  /// The size of the paper.
  virtual Twips Width() const = 0;
  virtual Twips Height() const = 0;
  /// The size of the printable area.
  virtual Twips ScaleWidth() const = 0;
  virtual Twips ScaleHeight() const = 0;
  /// How far the printable area starts from the paper's left and top edge.
  virtual Twips OffsetX() const = 0;
  virtual Twips OffsetY() const = 0;

  /// Opens the job with its first page. A job that was left open is given up.
  virtual void StartDoc() = 0;
  /// The page that is open: good until the next call of `NewPage` or `EndDoc`.
  virtual DeviceContext& Context() = 0;
  virtual void NewPage() = 0;
  /// Commits the job.
  virtual void EndDoc() = 0;
};

}  // namespace tagsmith
