#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tagsmith {

/// A text with its selection, written as one: "ab«cd»e", a bare caret as "ab«»e".
struct MarkedText {
  static constexpr std::string_view kOpen = "«";
  static constexpr std::string_view kClose = "»";

  std::string text;
  std::size_t selStart = 0;
  std::size_t selLength = 0;

  static MarkedText Read(std::string_view marked) {
    const std::size_t open = marked.find(kOpen);
    const std::size_t close = marked.find(kClose);
    MarkedText result{std::string(marked), open, close - open - kOpen.size()};
    result.text.erase(close, kClose.size()).erase(open, kOpen.size());
    return result;
  }

  std::string Write() const {
    std::string marked = text;
    return marked.insert(selStart + selLength, kClose).insert(selStart, kOpen);
  }
};

}  // namespace tagsmith
