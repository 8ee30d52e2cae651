#include "services/host/IconvDecoder.h"

namespace tagsmith {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

std::string WithoutDecoding(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    if (static_cast<unsigned char>(c) < 0x80) {
      text += c;
    } else {
      text += kReplacement;
    }
  }
  return text;
}

}  // namespace

const Iconv& IconvDecoder::ConversionOf(int codePage) {
  return conversions_.try_emplace(codePage, "UTF-8", "CP" + std::to_string(codePage)).first->second;
}

std::string IconvDecoder::Decode(int codePage, std::string_view bytes) {
  const Iconv& conversion = ConversionOf(codePage);
  if (!conversion.IsKnown()) return WithoutDecoding(bytes);
  std::string text;
  while (!bytes.empty()) {
    conversion.Convert(bytes, text);
    if (bytes.empty()) break;
    text += kReplacement;
    bytes.remove_prefix(1);
  }
  return text;
}

}  // namespace tagsmith
