#pragma once

#include <cstdint>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

/// Where the text of a group goes.
enum class Destination : std::uint8_t {
  kBody,
  kNowhere,      ///< Control words count, text does not.
  kSkipped,      ///< Nothing counts.
  kAnsiVersion,  ///< Nothing counts until \ud, which brings the same once more in Unicode.
  kFontTable,
  kColourTable,
  kStyleSheet,
  kInfo,
  kListTable,
  kOldList,
  kPicture,
  kInstruction,  ///< Of the field in `GroupState::instruction`.
  kListText,     ///< Kept in case the paragraph's list is not known.
  kCapture,      ///< Kept for the end of the group.
};

/// What is to do when a group ends.
enum class GroupEnd : std::uint8_t {
  kNothing,
  kOrdinary,  ///< Nothing either: a destination without an end of its own.
  kFontTable,
  kTitle,
  kInstruction,
  kBookmark,
  kPropertyName,
  kPropertyValue,
  kPicture,
  kShape,
  kObject,
  kNote,
  kTextBox,
  kOldList,
};

/// A list that a paragraph describes itself, as before Word 97 (\pn).
struct OldList {
  bool isThere = false;
  bool isUnmarked = false;
  Numbering numbering = Numbering::kDecimal;
  std::uint8_t level = 0;
  int start = 1;
};

/// What a group inherits from the one around it and gives up at its end. Copied for each group.
struct GroupState {
  Destination destination = Destination::kBody;
  Destination outerDestination = Destination::kBody;  ///< For \ud.
  GroupEnd end = GroupEnd::kNothing;
  bool isHidden = false;
  bool isDeleted = false;
  bool isHiddenInPages = false;
  bool usesAssociatedFont = false;
  bool isInTable = false;
  bool isNestedRow = false;
  int tableLevel = 0;
  int fallbackLength = 1;  ///< \uc
  int associatedFont = kAbsent;
  int field = kAbsent;
  int instruction = kAbsent;
  int listOverride = 0;
  int listLevel = 0;
  OldList oldList;
  Colour highlight = kAbsent;
  Colour shading = kAbsent;
  CharacterFormat characters;
  ParagraphFormat paragraph;
};

}  // namespace tagsmith::rtf
