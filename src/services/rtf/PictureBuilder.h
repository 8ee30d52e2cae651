#pragma once

#include <cstddef>
#include <string_view>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

enum class PictureLength { kWidth, kHeight };

/// Puts a picture together from the words and the data of a \pict group (Rich Text Format 1.9.1,
/// "Pictures").
class PictureBuilder {
 public:
  void SetFile(PictureType type);
  /// What a picture is that is no file a page can show, and how many of its own units are an inch.
  void SetKind(std::string_view kind, int unitsPerInch);
  /// \picw and \pich: in the picture's own units.
  void SetOwnLength(PictureLength which, int length) { Of(which).own = length; }
  /// \picwgoal and \pichgoal: twips.
  void SetGoal(PictureLength which, int twips) { Of(which).goal = twips; }
  /// \picscalex and \picscaley: per cent.
  void SetScale(PictureLength which, int percent) { Of(which).percent = percent; }

  void AddHex(std::string_view digits);
  void AddBinary(std::string_view bytes);

  /// The picture; one that is left out if its bytes did not come.
  Picture Take(std::string_view description);

 private:
  struct Length {
    int own = 0;
    int goal = 0;
    int percent = 100;
  };

  Length& Of(PictureLength which) { return which == PictureLength::kWidth ? width_ : height_; }
  int LengthOnPage(const Length& length) const;

  Picture picture_{.kind = "picture", .bytes = {}, .description = {}};
  Length width_;
  Length height_;
  int unitsPerInch_ = 96;
  int firstDigit_ = kAbsent;
};

}  // namespace tagsmith::rtf
