#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tagsmith::rtf {

/// The footnotes and endnotes of a document, in the order in which they came, for the page's end.
class Notes {
 public:
  /// Adds note `number` with its paragraphs' markup.
  void Add(int number, std::string&& markup);

  /// The mark of note `number`, a link to it; empty for a number that never came.
  std::string Mark(int number);

  /// Appends the section of the notes, or nothing where there are none.
  void AppendSection(std::string& out) const;

 private:
  struct Note {
    std::int64_t place = 0;
    bool isMarked = false;
  };

  std::unordered_map<int, Note> notes_;
  std::string items_;
};

}  // namespace tagsmith::rtf
