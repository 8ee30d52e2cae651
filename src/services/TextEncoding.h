#pragma once

#include <string>
#include <string_view>

namespace tagsmith {

/// How a text lies in its file.
enum class TextEncoding {
  kUtf8,
  kWindows1252,
};

struct DecodedText {
  std::string text;  ///< UTF-8
  TextEncoding encoding = TextEncoding::kUtf8;
};

/// The text of a file's bytes. Valid UTF-8 (The Unicode Standard, section 3.9, D92), with or
/// without a byte order mark, is taken as it is, mark included; anything else is Windows-1252
/// (WHATWG Encoding Standard, section 9, index windows-1252), one character for each byte, so that
/// every byte value comes back.
DecodedText DecodeText(std::string bytes);

/// The bytes of a text (UTF-8) for a file that came in `encoding`. `encoding` becomes kUtf8, and
/// the bytes are UTF-8, when Windows-1252 cannot hold the text, or when its bytes would be taken
/// for another text on the next reading.
std::string EncodeText(std::string_view text, TextEncoding& encoding);

}  // namespace tagsmith
