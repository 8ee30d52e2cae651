#include "services/rtf/Pictures.h"

#include <algorithm>
#include <utility>

#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

constexpr int kTwipsOfPixel = 15;

void AppendSize(std::string& out, std::string_view attribute, int twips) {
  if (twips <= 0) return;
  out += ' ';
  out += attribute;
  out += "=\"";
  AppendNumber(
      out, std::max((std::int64_t{twips} + kTwipsOfPixel / 2) / kTwipsOfPixel, std::int64_t{1}));
  out += '"';
}

std::string ImageElement(const Picture& picture, std::string_view fileName) {
  std::string element = "<img src=\"";
  AppendPercentEncoded(element, fileName);
  element += '"';
  AppendSize(element, "width", picture.width);
  AppendSize(element, "height", picture.height);
  element += " alt=\"";
  AppendEscaped(element, picture.description);
  return element + "\">";
}

std::string LeftOutElement(const Picture& picture) {
  std::string element = "<span class=\"left-out\">[Picture left out";
  for (const std::string_view text : {picture.kind, std::string_view(picture.description)}) {
    if (text.empty()) continue;
    element += ": ";
    AppendEscaped(element, text);
  }
  return element + "]</span>";
}

}  // namespace

void Pictures::Add(int number, Picture&& picture) {
  if (picture.type == PictureType::kOther) {
    elements_[number] = LeftOutElement(picture);
    return;
  }
  const char* const extension = picture.type == PictureType::kPng ? ".png" : ".jpg";
  std::string name = stem_ + '_' + std::to_string(files_.size() + 1) + extension;
  elements_[number] = ImageElement(picture, name);
  files_.push_back({std::move(name), std::move(picture.bytes)});
}

std::string_view Pictures::Element(int number) const {
  const auto found = elements_.find(number);
  return found == elements_.end() ? std::string_view() : std::string_view(found->second);
}

}  // namespace tagsmith::rtf
