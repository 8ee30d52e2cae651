#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "services/host/Iconv.h"

namespace tagsmith {

/// Words on their way into a dictionary and back: UTF-8 here, there the encoding that its SET line
/// names.
class DictionaryEncoding {
 public:
  /// `name` as dictionaries spell it: "UTF-8", "ISO8859-1", "microsoft-cp1251", "TIS620-2533". Of
  /// an encoding that the C library does not know, the ASCII half works.
  explicit DictionaryEncoding(const std::string& name);

  /// Makes `into`, whose memory it uses again, the dictionary's bytes for `word`. False when the
  /// encoding cannot hold the word, or the word is not UTF-8.
  bool Encode(std::string_view word, std::string& into) const;

  /// The text of the dictionary's `bytes`; nothing when they make none.
  std::optional<std::string> Decode(std::string_view bytes) const;

 private:
  bool isUtf8_;
  Iconv encoder_;
  Iconv decoder_;
};

}  // namespace tagsmith
