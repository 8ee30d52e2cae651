#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/rtf/Reader.h"

namespace tagsmith::rtf {

struct PictureFile {
  std::string name;  ///< As the page calls it: no folder.
  std::string bytes;
};

struct WebPage {
  std::string html;  ///< HTML 5 in UTF-8, with its charset declaration; lines end in CR LF.
  std::vector<PictureFile> pictures;
};

struct PageOptions {
  std::string title;      ///< For a file that has none of its own.
  std::string generator;  ///< The program's name, for the page's head.
  std::string fontName;   ///< The font of text whose own is not named.
  std::string stem;       ///< What the names of the picture files begin with, UTF-8.
};

/// The web page for a file in Rich Text Format, as `ReadRtf` reads it. Throws `NotRtf`.
WebPage ConvertToWebPage(std::string_view rtf, const PageOptions& options,
                         const MultiByteDecoder& decoder);

}  // namespace tagsmith::rtf
