#include "services/rtf/ListTables.h"

#include <algorithm>

namespace tagsmith::rtf {
namespace {

constexpr int kLargestStart = 1'000'000;

}  // namespace

Numbering NumberingOfFormat(int format) {
  switch (format) {
    case 1:
      return Numbering::kUpperRoman;
    case 2:
      return Numbering::kLowerRoman;
    case 3:
      return Numbering::kUpperLetter;
    case 4:
      return Numbering::kLowerLetter;
    case 23:
      return Numbering::kBullet;
    case 255:
      return Numbering::kHidden;
    default:
      return Numbering::kDecimal;
  }
}

void ListTables::BeginList() {
  isOverride_ = false;
  level_ = kAbsent;
  lists_.push_back({.number = listCount_++, .levels = {}});
}

void ListTables::BeginOverride() {
  isOverride_ = true;
  level_ = kAbsent;
  override_ = {};
}

void ListTables::BeginLevel() {
  if (!isOverride_) level_ = std::min(level_ + 1, kListLevels);
}

// A list with levels of its own counts for itself.
void ListTables::BeginOverriddenLevel() {
  if (!isOverride_) return;
  if (level_ == kAbsent) override_.number = listCount_++;
  level_ = std::min(level_ + 1, kListLevels);
}

ListTables::Level* ListTables::OpenLevel() {
  if (level_ < 0 || level_ >= kListLevels) return nullptr;
  if (!isOverride_ && lists_.empty()) return nullptr;
  List& list = isOverride_ ? override_ : lists_.back();
  return &list.levels[static_cast<std::size_t>(level_)];
}

void ListTables::SetNumbering(Numbering numbering) {
  if (Level* const level = OpenLevel()) level->numbering = numbering;
}

void ListTables::SetStart(int start) {
  if (Level* const level = OpenLevel()) level->start = std::clamp(start, 0, kLargestStart);
}

void ListTables::SetId(int id) {
  if (!isOverride_) {
    if (!lists_.empty()) listsById_[id] = lists_.size() - 1;
    return;
  }
  const auto found = listsById_.find(id);
  if (found != listsById_.end()) override_ = lists_[found->second];
}

void ListTables::SetOverrideNumber(int number) {
  if (isOverride_ && override_.number != kAbsent) overrides_[number] = override_;
}

ListPlace ListTables::Place(int overrideNumber, int level) const {
  const auto found = overrides_.find(overrideNumber);
  if (found == overrides_.end()) return {};
  const int place = std::clamp(level, 0, kListLevels - 1);
  const Level& format = found->second.levels[static_cast<std::size_t>(place)];
  return {found->second.number, place, format.numbering, format.start};
}

ListPlace ListTables::Place(const OldList& list, ListPlace& neighbour) {
  const Numbering numbering = list.isUnmarked ? Numbering::kHidden : list.numbering;
  const bool isOther = list.level == neighbour.level && numbering != neighbour.numbering &&
                       numbering != Numbering::kHidden;
  if (neighbour.list == kAbsent || isOther) neighbour.list = listCount_++;
  neighbour.level = list.level;
  if (numbering != Numbering::kHidden) neighbour.numbering = numbering;
  return {neighbour.list, list.level, numbering, std::clamp(list.start, 0, kLargestStart)};
}

}  // namespace tagsmith::rtf
