#pragma once

#include <array>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include "services/rtf/Document.h"
#include "services/rtf/GroupState.h"

namespace tagsmith::rtf {

constexpr int kListLevels = 9;

/// What a value of \levelnfc numbers with.
Numbering NumberingOfFormat(int format);

/// The lists of a file and where a paragraph stands in them (Rich Text Format 1.9.1, "List Tables"
/// and "Bullets and Numbering").
class ListTables {
 public:
  // The tables, in the order of their words.
  void BeginList();
  void BeginOverride();
  /// Begins the next level of a list.
  void BeginLevel();
  /// Begins the next level that an override says something about.
  void BeginOverriddenLevel();
  void SetNumbering(Numbering numbering);
  void SetStart(int start);
  /// \listid: names the list that is open, or the one that the open override is for.
  void SetId(int id);
  /// \ls in the table: names the open override.
  void SetOverrideNumber(int number);

  /// The place of a paragraph with \ls and \ilvl.
  ListPlace Place(int overrideNumber, int level) const;
  /// The place of a paragraph that describes its list itself. It shares the list of its
  /// `neighbour`, the paragraph before it if that does the same, unless the kinds differ; and it is
  /// the neighbour of the next one.
  ListPlace Place(const OldList& list, ListPlace& neighbour);

 private:
  struct Level {
    Numbering numbering = Numbering::kDecimal;
    int start = 1;
  };
  struct List {
    int number = kAbsent;
    std::array<Level, kListLevels> levels;
  };

  Level* OpenLevel();

  std::vector<List> lists_;
  std::unordered_map<int, std::size_t> listsById_;
  std::unordered_map<int, List> overrides_;
  List override_;
  bool isOverride_ = false;
  int level_ = kAbsent;
  int listCount_ = 0;
};

}  // namespace tagsmith::rtf
