#include "core/Template.h"

#include <algorithm>

namespace tagsmith {
namespace {

// The value whose mark stands at the beginning of `rest`, null if none does.
const TemplateValue* MarkedAt(std::string_view rest, std::initializer_list<TemplateValue> values) {
  const auto* found =
      std::find_if(values.begin(), values.end(), [rest](const TemplateValue& value) {
        const std::size_t end = value.name.size() + 1;
        return rest.size() > end && rest[end] == '}' &&
               rest.substr(1, value.name.size()) == value.name;
      });
  return found == values.end() ? nullptr : found;
}

}  // namespace

std::string FillTemplate(std::string_view text, std::initializer_list<TemplateValue> values) {
  std::string filled;
  while (!text.empty()) {
    const auto* special =
        std::find_if(text.begin(), text.end(), [](char c) { return c == '{' || c == '\n'; });
    filled.append(text.begin(), special);
    text.remove_prefix(static_cast<std::size_t>(special - text.begin()));
    if (text.empty()) break;
    const TemplateValue* value = text.front() == '{' ? MarkedAt(text, values) : nullptr;
    if (value != nullptr) {
      filled += value->value;
      text.remove_prefix(value->name.size() + 2);
      continue;
    }
    filled += text.front() == '\n' ? std::string_view("\r\n") : text.substr(0, 1);
    text.remove_prefix(1);
  }
  return filled;
}

}  // namespace tagsmith
