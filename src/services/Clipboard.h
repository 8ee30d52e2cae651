#pragma once

#include <string>
#include <string_view>

namespace tagsmith {

/// The desktop's clipboard, text only, UTF-8, no character changed on the way. Each call throws
/// `Error` when the clipboard cannot be opened.
class Clipboard {
 public:
  virtual ~Clipboard() = default;

  /// The text, empty when there is none.
  virtual std::string GetText() const = 0;
  virtual void SetText(std::string_view text) = 0;
  virtual void Clear() = 0;
};

}  // namespace tagsmith
