#include "services/desktop/editpane/MatchingTag.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace tagsmith {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

struct Tag {
  TextSpan whole;
  TextSpan name;
  std::string lowerName;
  bool closing = false;
  bool selfContained = false;
};

// The elements that have no end tag (HTML Living Standard, section 13.1.2, void elements), and
// those of earlier editions.
constexpr std::array<std::string_view, 19> kVoidElements = {
    "area",  "base",    "basefont", "bgsound", "br",   "col",   "embed",  "frame", "hr", "img",
    "input", "isindex", "keygen",   "link",    "meta", "param", "source", "track", "wbr"};

// The elements whose content is text up to their end tag.
constexpr std::array<std::string_view, 4> kTextElements = {"script", "style", "textarea", "title"};

// What runs from the first text to the second without a tag in it.
struct Passage {
  std::string_view from;
  std::string_view to;
};
constexpr std::array<Passage, 4> kPassages = {
    {{"<!--", "-->"}, {"<%", "%>"}, {"<?", "?>"}, {"<!", ">"}}};

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool IsNameCharacter(char c) {
  return IsLetter(c) || (c >= '0' && c <= '9') || c == ':' || c == '-' || c == '_';
}

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

template <std::size_t N>
bool Holds(const std::array<std::string_view, N>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// Reads the tags of a page from its beginning on.
class TagReader {
 public:
  explicit TagReader(std::string_view page) : page_(page) {}

  std::optional<Tag> Next() {
    while ((at_ = page_.find('<', at_)) != kNowhere) {
      if (SkipPassage()) continue;
      std::optional<Tag> tag = ReadTag();
      if (!tag) {
        ++at_;
        continue;
      }
      at_ = tag->whole.End();
      if (!tag->closing && Holds(kTextElements, tag->lowerName)) SkipContent(tag->lowerName);
      return tag;
    }
    at_ = page_.size();
    return std::nullopt;
  }

 private:
  bool SkipPassage() {
    const std::string_view rest = page_.substr(at_);
    for (const Passage& passage : kPassages) {
      if (!rest.starts_with(passage.from)) continue;
      const std::size_t end = rest.find(passage.to, passage.from.size());
      at_ = end == kNowhere ? page_.size() : at_ + end + passage.to.size();
      return true;
    }
    return false;
  }

  std::optional<Tag> ReadTag() const {
    Tag tag;
    tag.whole.start = at_;
    tag.closing = page_.substr(at_ + 1, 1) == "/";
    tag.name.start = at_ + (tag.closing ? 2 : 1);
    if (tag.name.start >= page_.size() || !IsLetter(page_[tag.name.start])) return std::nullopt;

    std::size_t end = tag.name.start;
    while (end < page_.size() && IsNameCharacter(page_[end])) ++end;
    tag.name.length = end - tag.name.start;
    tag.lowerName = Lower(page_.substr(tag.name.start, tag.name.length));

    const std::size_t close = FindTagEnd(end);
    if (close == kNowhere) return std::nullopt;
    tag.whole.length = close + 1 - at_;
    tag.selfContained = page_[close - 1] == '/' || Holds(kVoidElements, tag.lowerName);
    return tag;
  }

  // The ">" that ends the tag; nowhere for one that is not finished.
  std::size_t FindTagEnd(std::size_t from) const {
    for (std::size_t i = from; (i = page_.find_first_of("<>\"'", i)) != kNowhere; ++i) {
      if (page_[i] == '>') return i;
      if (page_[i] == '<') return kNowhere;
      i = page_.find(page_[i], i + 1);
      if (i == kNowhere) return kNowhere;
    }
    return kNowhere;
  }

  void SkipContent(const std::string& lowerName) {
    for (std::size_t i = at_; (i = page_.find("</", i)) != kNowhere; ++i) {
      if (Lower(page_.substr(i + 2, lowerName.size())) == lowerName) {
        at_ = i;
        return;
      }
    }
  }

  std::string_view page_;
  std::size_t at_ = 0;
};

// The partner of `tag` among `others`, which come in the order of walking away from it.
template <class Iterator>
std::optional<TextSpan> FindPartner(const Tag& tag, Iterator begin, Iterator end) {
  std::size_t depth = 0;
  for (Iterator other = begin; other != end; ++other) {
    if (other->selfContained || other->lowerName != tag.lowerName) continue;
    if (other->closing == tag.closing) {
      ++depth;
    } else if (depth-- == 0) {
      return other->name;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<TagPair> FindMatchingTag(std::string_view window, std::size_t position) {
  std::vector<Tag> tags;
  TagReader reader(window);
  while (std::optional<Tag> tag = reader.Next()) tags.push_back(std::move(*tag));

  const auto holds = [position](const Tag& tag) {
    return tag.whole.start <= position && position < tag.whole.End();
  };
  const auto own = std::find_if(tags.begin(), tags.end(), holds);
  if (own == tags.end() || own->selfContained) return std::nullopt;

  const std::optional<TextSpan> partner =
      own->closing ? FindPartner(*own, std::make_reverse_iterator(own), tags.rend())
                   : FindPartner(*own, std::next(own), tags.end());
  if (!partner) return std::nullopt;
  return own->closing ? TagPair{*partner, own->name} : TagPair{own->name, *partner};
}

}  // namespace tagsmith
