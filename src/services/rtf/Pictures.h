#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "services/rtf/Document.h"
#include "services/rtf/WebPage.h"

namespace tagsmith::rtf {

/// The pictures of a document: their files, and what stands in the page for them.
class Pictures {
 public:
  /// `stem` is what the names of the files begin with.
  explicit Pictures(std::string_view stem) : stem_(stem) {}

  void Add(int number, Picture&& picture);

  /// The element that shows picture `number`, or a note for one of a kind that browsers do not
  /// know; empty for a number that never came.
  std::string_view Element(int number) const;

  std::vector<PictureFile> TakeFiles() { return std::move(files_); }

 private:
  std::string stem_;
  std::unordered_map<int, std::string> elements_;
  std::vector<PictureFile> files_;
};

}  // namespace tagsmith::rtf
