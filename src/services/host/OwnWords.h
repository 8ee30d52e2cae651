#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tagsmith {

/// The user's own words in a file: UTF-8, one a line. Several running programs may share it. Lines
/// that are no words are passed over and stay in the file. Errors name what they are about.
class OwnWords {
 public:
  /// `path` is the file's host path. Its folder is made when it is needed.
  explicit OwnWords(std::string path) : path_(std::move(path)) {}

  /// The words of the file, none where there is no file. Throws `Error` when it cannot be read.
  std::vector<std::string> Read() const;

  /// Puts `word` (UTF-8) behind what the file holds now, unless it is there. Throws `Error` when it
  /// cannot be kept; it is tried again with the next word.
  void Keep(std::string_view word);

 private:
  void Store();

  std::string path_;
  std::vector<std::string> unsaved_;
};

}  // namespace tagsmith
