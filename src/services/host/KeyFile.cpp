#include "services/host/KeyFile.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tagsmith {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

// Letter behind the backslash, and what the two stand for.
constexpr std::array<std::pair<char, char>, 5> kEscapes = {
    {{'s', ' '}, {'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'\\', '\\'}}};

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

// Takes the first line, with its line feed, off `rest`.
std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line =
      rest.substr(0, end == std::string_view::npos ? rest.size() : end + 1);
  rest.remove_prefix(line.size());
  return line;
}

bool IsGroup(std::string_view line) { return Trim(line).starts_with('['); }

bool IsGroup(std::string_view line, std::string_view name) {
  line = Trim(line);
  return line.size() == name.size() + 2 && line.front() == '[' && line.back() == ']' &&
         line.substr(1, name.size()) == name;
}

bool SetsKey(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  return equals != std::string_view::npos && Trim(line.substr(0, equals)) == key;
}

std::string_view ValueOf(std::string_view line) { return Trim(line.substr(line.find('=') + 1)); }

std::string KeyLine(std::string_view key, const std::vector<std::string>& list) {
  std::string line = std::string(key).append("=");
  for (const std::string& entry : list) line.append(entry).append(";");
  return line.append("\n");
}

void EndLine(std::string& text) {
  if (!text.empty() && text.back() != '\n') text += '\n';
}

}  // namespace

std::vector<std::string_view> KeyFileValues(std::string_view text, std::string_view group,
                                            std::string_view key) {
  std::vector<std::string_view> values;
  bool inGroup = false;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (IsGroup(line)) {
      inGroup = IsGroup(line, group);
    } else if (inGroup && SetsKey(line, key)) {
      values.push_back(ValueOf(line));
    }
  }
  return values;
}

std::string_view KeyFileValue(std::string_view text, std::string_view group, std::string_view key) {
  const auto values = KeyFileValues(text, group, key);
  return values.empty() ? std::string_view() : values.back();
}

std::string WithKeyFileList(std::string_view text, std::string_view group, std::string_view key,
                            const std::function<void(std::vector<std::string>&)>& change) {
  std::string result;
  std::size_t place = std::string::npos;  // Behind the group's first line.
  bool inGroup = false;
  bool isSet = false;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    const bool startsGroup = IsGroup(line);
    if (startsGroup) inGroup = IsGroup(line, group);
    const bool setsIt = inGroup && !startsGroup && SetsKey(line, key);
    isSet = isSet || setsIt;
    const auto before = setsIt ? KeyFileList(ValueOf(line)) : std::vector<std::string>();
    auto list = before;
    if (setsIt) change(list);
    result += list == before ? std::string(line) : KeyLine(key, list);
    if (startsGroup && inGroup && place == std::string::npos) {
      EndLine(result);
      place = result.size();
    }
  }
  std::vector<std::string> added;
  if (!isSet) change(added);
  if (added.empty()) return result;

  if (place == std::string::npos) {
    EndLine(result);
    if (!result.empty()) result += '\n';
    result.append("[").append(group).append("]\n");
    place = result.size();
  }
  return result.insert(place, KeyLine(key, added));
}

std::vector<std::string> KeyFileList(std::string_view value) {
  std::vector<std::string> entries;
  while (!value.empty()) {
    const std::size_t end = std::min(value.find(';'), value.size());
    if (const std::string_view entry = Trim(value.substr(0, end)); !entry.empty()) {
      entries.emplace_back(entry);
    }
    value.remove_prefix(std::min(end + 1, value.size()));
  }
  return entries;
}

std::string UnescapeKeyFileText(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    char c = value[i];
    if (c == '\\' && i + 1 < value.size()) {
      for (const auto& [letter, meaning] : kEscapes) {
        if (value[i + 1] != letter) continue;
        c = meaning;
        ++i;
        break;
      }
    }
    text += c;
  }
  return text;
}

std::string EscapeKeyFileText(std::string_view text) {
  std::string value;
  for (const char c : text) {
    char letter = 0;
    for (const auto& [escape, meaning] : kEscapes) {
      const bool isNeeded = meaning != ' ' || value.empty();
      if (c == meaning && isNeeded) letter = escape;
    }
    if (letter == 0) {
      value += c;
    } else {
      value.append("\\").push_back(letter);
    }
  }
  return value;
}

}  // namespace tagsmith
