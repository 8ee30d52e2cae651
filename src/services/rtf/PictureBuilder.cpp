#include "services/rtf/PictureBuilder.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "services/rtf/Tokenizer.h"

namespace tagsmith::rtf {
namespace {

constexpr std::int64_t kTwipsPerInch = 1440;
constexpr std::int64_t kLargestTwips = 100'000;

}  // namespace

void PictureBuilder::SetFile(PictureType type) {
  picture_.type = type;
  picture_.kind = {};
}

void PictureBuilder::SetKind(std::string_view kind, int unitsPerInch) {
  picture_.type = PictureType::kOther;
  picture_.kind = kind;
  unitsPerInch_ = unitsPerInch;
}

void PictureBuilder::AddHex(std::string_view digits) {
  if (picture_.type == PictureType::kOther) return;
  for (const char character : digits) {
    const int digit = HexDigit(character);
    if (digit < 0) continue;
    if (firstDigit_ == kAbsent) {
      firstDigit_ = digit;
    } else {
      picture_.bytes += static_cast<char>(firstDigit_ * 16 + digit);
      firstDigit_ = kAbsent;
    }
  }
}

void PictureBuilder::AddBinary(std::string_view bytes) {
  if (picture_.type != PictureType::kOther) picture_.bytes += bytes;
}

int PictureBuilder::LengthOnPage(const Length& length) const {
  std::int64_t twips = std::max(0, length.goal);
  if (twips == 0) twips = std::max(0, length.own) * kTwipsPerInch / unitsPerInch_;
  twips = std::min(twips, kLargestTwips) * std::clamp(length.percent, 1, 10'000) / 100;
  return static_cast<int>(std::min(twips, kLargestTwips));
}

Picture PictureBuilder::Take(std::string_view description) {
  picture_.width = LengthOnPage(width_);
  picture_.height = LengthOnPage(height_);
  picture_.description = description;
  if (picture_.type != PictureType::kOther && picture_.bytes.empty()) {
    picture_.type = PictureType::kOther;
    picture_.kind = "empty picture";
  }
  return std::move(picture_);
}

}  // namespace tagsmith::rtf
