#include "services/host/IconvDecoder.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>

namespace tagsmith {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

bool IsNone(iconv_t descriptor) { return reinterpret_cast<std::intptr_t>(descriptor) == -1; }

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

void IconvDecoder::Closer::operator()(void* descriptor) const { ::iconv_close(descriptor); }

void* IconvDecoder::DescriptorOf(int codePage) {
  const auto [found, isNew] = descriptors_.try_emplace(codePage);
  if (isNew) {
    const std::string name = "CP" + std::to_string(codePage);
    const iconv_t descriptor = ::iconv_open("UTF-8", name.c_str());
    if (!IsNone(descriptor)) found->second.reset(descriptor);
  }
  return found->second.get();
}

std::string IconvDecoder::Decode(int codePage, std::string_view bytes) {
  const iconv_t descriptor = DescriptorOf(codePage);
  if (descriptor == nullptr) return WithoutDecoding(bytes);
  ::iconv(descriptor, nullptr, nullptr, nullptr, nullptr);

  std::string text;
  std::array<char, 1024> piece{};
  char* from = const_cast<char*>(bytes.data());  // iconv does not write to it.
  std::size_t left = bytes.size();
  while (left > 0) {
    char* to = piece.data();
    std::size_t room = piece.size();
    const std::size_t result = ::iconv(descriptor, &from, &left, &to, &room);
    const int error = errno;
    text.append(piece.data(), to);
    if (result != static_cast<std::size_t>(-1) || error == E2BIG) continue;
    text += kReplacement;
    ++from;
    --left;
  }
  return text;
}

}  // namespace tagsmith
