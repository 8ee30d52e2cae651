#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

/// Writes the lists around paragraphs: nests, ends and goes on with them. What it opens it closes
/// in the same place; lists that were broken off keep their numbers.
class ListWriter {
 public:
  /// Opens the item that a paragraph with a list place begins, "<li>" included; the item stays open
  /// for what follows.
  void BeginItem(std::string& out, const ParagraphFormat& format);

  /// Whether a paragraph without a number stands in an item that is open, under its text; the lists
  /// inside that item are closed then.
  bool Continues(std::string& out, const ParagraphFormat& format);

  void CloseAll(std::string& out);

 private:
  struct OpenList {
    ListPlace place;
    int leftIndent = 0;
  };
  static constexpr std::size_t kLevels = 9;
  using Counters = std::array<std::optional<std::int64_t>, kLevels>;

  void CloseLast(std::string& out);
  void OpenNew(std::string& out, const ListPlace& place, int leftIndent, std::int64_t number);
  std::int64_t NextNumber(const ListPlace& place);

  std::vector<OpenList> open_;
  std::unordered_map<int, Counters> counters_;
};

}  // namespace tagsmith::rtf
