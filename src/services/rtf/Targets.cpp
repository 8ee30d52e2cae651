#include "services/rtf/Targets.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

constexpr std::array<std::string_view, 8> kSchemes = {"http", "https", "mailto", "ftp",
                                                      "file", "tel",   "sms",    "news"};
// Browsers and servers pass on no longer ones; and a link over many paragraphs is written in each.
constexpr std::size_t kLongestAddress = 2048;

constexpr std::string_view kNotInAddresses = " \"<>\\^`{|}";

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

// Browsers pass over control characters, and over blanks around an address; so must the look at
// what it begins with.
std::string WithoutPadding(std::string_view target) {
  std::string text;
  for (const char c : target) {
    if (!IsControl(c)) text += c;
  }
  const std::size_t begin = text.find_first_not_of(' ');
  if (begin == std::string::npos) return {};
  return text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

bool HasDrive(std::string_view text) {
  return text.size() >= 2 && IsLetter(text[0]) && text[1] == ':';
}

std::string WithSlashes(std::string text) {
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

// The scheme in lower case, or nothing for a relative address.
std::optional<std::string> SchemeOf(std::string_view text) {
  const std::size_t end = text.find_first_of(":/?#");
  if (end == std::string_view::npos || text[end] != ':') return std::nullopt;
  std::string scheme(text.substr(0, end));
  for (char& c : scheme) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return scheme;
}

std::string Encoded(std::string_view address) {
  std::string text;
  for (std::size_t i = 0; i < address.size(); ++i) {
    const char c = address[i];
    if (static_cast<unsigned char>(c) >= 0x80 ||
        kNotInAddresses.find(c) != std::string_view::npos) {
      AppendPercentEncoded(text, address.substr(i, 1));
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace

std::string SafeAddress(std::string_view target) {
  std::string text = WithoutPadding(target);
  if (HasDrive(text)) return Encoded("file:///" + WithSlashes(std::move(text)));
  if (text.starts_with("\\\\")) return Encoded("file:" + WithSlashes(std::move(text)));
  const std::optional<std::string> scheme = SchemeOf(text);
  if (scheme && std::find(kSchemes.begin(), kSchemes.end(), *scheme) == kSchemes.end()) return {};
  if (!scheme || scheme == "file") text = WithSlashes(std::move(text));
  return Encoded(text);
}

void Targets::AddLink(int number, std::string_view target) {
  Link link;
  if (target.starts_with('#')) {
    link.bookmark = target.substr(1);
    if (link.bookmark.empty() || link.bookmark.size() > kLongestAddress) return;
  } else {
    link.address = SafeAddress(target);
    if (link.address.empty() || link.address.size() > kLongestAddress) return;
  }
  numbers_[number] = static_cast<std::uint32_t>(links_.size());
  links_.push_back(std::move(link));
}

std::optional<std::uint32_t> Targets::LinkOf(int number) const {
  const auto found = numbers_.find(number);
  if (found == numbers_.end()) return std::nullopt;
  return found->second;
}

// Ids of bookmarks hold no "-", which those of the notes do: so they never meet.
std::string Targets::UnusedId(std::string_view name) {
  std::string id;
  if (name.empty() || (!IsLetter(name.front()) && name.front() != '_')) id = "b_";
  for (const char c : name) id += IsLetter(c) || IsDigit(c) ? c : '_';
  if (usedIds_.insert(id).second) return id;
  int& suffix = nextSuffix_.try_emplace(id, 2).first->second;
  for (;;) {
    std::string candidate = id + '_' + std::to_string(suffix++);
    if (usedIds_.insert(candidate).second) return candidate;
  }
}

std::optional<std::string> Targets::PlaceBookmark(std::string_view name) {
  const auto [found, isNew] = ids_.try_emplace(std::string(name));
  if (!isNew) return std::nullopt;
  found->second = UnusedId(name);
  return found->second;
}

std::vector<std::string> Targets::StartTags() const {
  std::vector<std::string> tags;
  tags.reserve(links_.size());
  for (const Link& link : links_) {
    std::string address = link.address;
    if (!link.bookmark.empty()) {
      const auto found = ids_.find(link.bookmark);
      if (found != ids_.end()) address = '#' + found->second;
    }
    std::string tag;
    if (!address.empty()) {
      tag = "<a href=\"";
      AppendEscaped(tag, address);
      tag += "\">";
    }
    tags.push_back(std::move(tag));
  }
  return tags;
}

}  // namespace tagsmith::rtf
