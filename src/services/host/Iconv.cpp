#include "services/host/Iconv.h"

#include <iconv.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>

namespace tagsmith {

void Iconv::Closer::operator()(void* descriptor) const { ::iconv_close(descriptor); }

Iconv::Iconv(const std::string& to, const std::string& from) {
  const iconv_t descriptor = ::iconv_open(to.c_str(), from.c_str());
  if (reinterpret_cast<std::intptr_t>(descriptor) != -1) descriptor_.reset(descriptor);
}

void Iconv::Convert(std::string_view& bytes, std::string& into) const {
  if (!IsKnown()) return;
  ::iconv(descriptor_.get(), nullptr, nullptr, nullptr, nullptr);
  std::array<char, 1024> piece;
  bool goesOn = true;
  while (goesOn && !bytes.empty()) {
    char* from = const_cast<char*>(bytes.data());  // iconv does not write to it.
    std::size_t left = bytes.size();
    char* to = piece.data();
    std::size_t room = piece.size();
    const std::size_t result = ::iconv(descriptor_.get(), &from, &left, &to, &room);
    goesOn = result != static_cast<std::size_t>(-1) || errno == E2BIG;
    into.append(piece.data(), to);
    bytes.remove_prefix(bytes.size() - left);
  }
}

}  // namespace tagsmith
