#include "generators/PhpProjectFile.h"

#include <array>
#include <cstddef>

#include "services/Utf8.h"

namespace tagsmith::generators {
namespace {

// In the order of the file's lines.
constexpr std::array kValues = {&PhpProject::dsn, &PhpProject::table, &PhpProject::user,
                                &PhpProject::password, &PhpProject::fields};

bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

void SkipLineEnd(std::string_view& text) { text.remove_prefix(text.starts_with("\r\n") ? 2 : 1); }

// Takes a value and its line end off the front of `rest`, which begins behind the opening quote;
// leaves it behind the opening quote of the next value.
std::optional<std::string> TakeValue(std::string_view& rest) {
  for (std::size_t quote = 0; (quote = rest.find('"', quote)) != std::string_view::npos; ++quote) {
    std::string_view behind = rest.substr(quote + 1);
    if (behind.empty() || !IsLineEnd(behind.front())) continue;
    SkipLineEnd(behind);
    if (!behind.starts_with('"')) continue;
    std::string value(rest.substr(0, quote));
    rest = behind.substr(1);
    return value;
  }
  return std::nullopt;
}

std::optional<std::string> LastValue(std::string_view rest) {
  for (std::size_t end = rest.size(); end > 0; --end) {
    const bool atLineEnd = end == rest.size() || IsLineEnd(rest[end]);
    if (rest[end - 1] == '"' && atLineEnd) return std::string(rest.substr(0, end - 1));
  }
  return std::nullopt;
}

}  // namespace

std::string WriteProject(const PhpProject& project) {
  std::string text;
  for (const auto value : kValues) text.append("\"").append(project.*value).append("\"\r\n");
  return text;
}

std::optional<PhpProject> ReadProject(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  if (!text.starts_with('"')) return std::nullopt;
  text.remove_prefix(1);
  PhpProject project;
  for (const auto value : kValues) {
    const bool isLast = value == kValues.back();
    std::optional<std::string> found = isLast ? LastValue(text) : TakeValue(text);
    if (!found) return std::nullopt;
    project.*value = *std::move(found);
  }
  return project;
}

}  // namespace tagsmith::generators
