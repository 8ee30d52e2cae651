#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

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
  struct Closer {
    void operator()(void* descriptor) const;
  };
  using Descriptor = std::unique_ptr<void, Closer>;

  static Descriptor Open(const std::string& to, const std::string& from);
  static bool Convert(const Descriptor& descriptor, std::string_view from, std::string& into);

  bool isUtf8_ = false;
  Descriptor encoder_;  ///< Null, as the other, for UTF-8 and for what is not known.
  Descriptor decoder_;
};

}  // namespace tagsmith
