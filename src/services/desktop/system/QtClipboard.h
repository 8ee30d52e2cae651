#pragma once

#include <string>
#include <string_view>

#include "services/Clipboard.h"

namespace tagsmith {

class QtClipboard final : public Clipboard {
 public:
  std::string GetText() const override;
  void SetText(std::string_view text) override;
  void Clear() override;
};

}  // namespace tagsmith
