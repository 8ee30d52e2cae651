#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tagsmith {

/// One place of a template: `{name}` in its text stands for `value`.
struct TemplateValue {
  std::string_view name;
  std::string_view value;
};

/// The text that the template stands for. Its lines end in a line feed and come out with CR LF.
/// Each `{name}` becomes its value, which goes in as it is: braces and line ends in it are its own.
/// All other braces are text.
std::string FillTemplate(std::string_view text, std::initializer_list<TemplateValue> values = {});

}  // namespace tagsmith
