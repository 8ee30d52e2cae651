#include "services/host/DictionaryEncoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>

#include "services/Utf8.h"

namespace tagsmith {
namespace {

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// The C library's name for an encoding.
std::string PlatformName(const std::string& name) {
  constexpr std::string_view kVendor = "microsoft-";
  if (name.starts_with(kVendor)) return name.substr(kVendor.size());
  return name == "TIS620-2533" ? "TIS620" : name;
}

}  // namespace

void DictionaryEncoding::Closer::operator()(void* descriptor) const { ::iconv_close(descriptor); }

DictionaryEncoding::Descriptor DictionaryEncoding::Open(const std::string& to,
                                                        const std::string& from) {
  const iconv_t descriptor = ::iconv_open(to.c_str(), from.c_str());
  return Descriptor(reinterpret_cast<std::intptr_t>(descriptor) == -1 ? nullptr : descriptor);
}

DictionaryEncoding::DictionaryEncoding(const std::string& name) : isUtf8_(name == "UTF-8") {
  if (isUtf8_) return;
  encoder_ = Open(PlatformName(name), "UTF-8");
  decoder_ = Open("UTF-8", PlatformName(name));
}

bool DictionaryEncoding::Convert(const Descriptor& descriptor, std::string_view from,
                                 std::string& into) {
  into.clear();
  if (descriptor == nullptr) return false;
  ::iconv(descriptor.get(), nullptr, nullptr, nullptr, nullptr);
  std::array<char, 256> piece{};
  char* next = const_cast<char*>(from.data());  // iconv does not write to it.
  std::size_t left = from.size();
  while (left > 0) {
    char* to = piece.data();
    std::size_t room = piece.size();
    const std::size_t result = ::iconv(descriptor.get(), &next, &left, &to, &room);
    if (result == static_cast<std::size_t>(-1) && errno != E2BIG) return false;
    into.append(piece.data(), to);
  }
  return true;
}

bool DictionaryEncoding::Encode(std::string_view word, std::string& into) const {
  if (IsAscii(word) || (isUtf8_ && IsValidUtf8(word))) {
    into.assign(word);
    return true;
  }
  return !isUtf8_ && Convert(encoder_, word, into);
}

std::optional<std::string> DictionaryEncoding::Decode(std::string_view bytes) const {
  std::string text(bytes);
  const bool isText =
      isUtf8_ ? IsValidUtf8(bytes) : IsAscii(bytes) || Convert(decoder_, bytes, text);
  return isText ? std::optional(text) : std::nullopt;
}

}  // namespace tagsmith
