#include "services/host/HostRtfConversion.h"

#include <cstddef>
#include <optional>
#include <string>

#include "services/Error.h"
#include "services/TextEncoding.h"
#include "services/host/IconvDecoder.h"
#include "services/rtf/WebPage.h"

namespace tagsmith {
namespace {

constexpr std::size_t kLargestFile = std::size_t{256} * 1024 * 1024;

std::string_view FileNameOf(std::string_view path) { return path.substr(path.rfind('\\') + 1); }

// The directory with its backslash.
std::string_view DirectoryOf(std::string_view path) {
  return path.substr(0, path.size() - FileNameOf(path).size());
}

std::string_view WithoutExtension(std::string_view fileName) {
  const std::size_t dot = fileName.rfind('.');
  return dot == 0 ? fileName : fileName.substr(0, dot);
}

rtf::WebPage Convert(std::string_view rtf, const rtf::PageOptions& options) {
  IconvDecoder decoder;
  try {
    return rtf::ConvertToWebPage(rtf, options, [&decoder](int codePage, std::string_view bytes) {
      return decoder.Decode(codePage, bytes);
    });
  } catch (const rtf::NotRtf& error) {
    throw Error(ErrorCode::kOther, error.what());
  }
}

}  // namespace

void HostRtfConversion::ScroogeConvertFile(std::string_view from, std::string_view to,
                                           int /*reserved3*/, std::string_view program,
                                           std::string_view /*reserved5*/,
                                           std::string_view /*reserved6*/,
                                           std::string_view fontName, int /*reserved8*/) {
  const std::optional<std::string> bytes = files_.ReadFile(from, kLargestFile);
  if (!bytes) throw Error(ErrorCode::kOther, "The file is too large");

  const std::string stem(WithoutExtension(FileNameOf(from)));
  const rtf::WebPage page = Convert(*bytes, {.title = DecodeText(stem).text,
                                             .generator = std::string(program),
                                             .fontName = std::string(fontName),
                                             .stem = stem});
  const std::string directory(DirectoryOf(to));
  for (const rtf::PictureFile& picture : page.pictures) {
    files_.WriteFile(directory + picture.name, picture.bytes, Durability::kWritten);
  }
  files_.WriteFile(to, page.html, Durability::kWritten);
}

}  // namespace tagsmith
