#include "services/rtf/ControlWords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace tagsmith::rtf {
namespace {

// All words by their hash. The slots are several times as many as the words, so that a look at one
// or two of them decides.
class WordIndex {
 public:
  WordIndex() {
    for (const auto words : {CharacterWords(), TextWords(), ParagraphWords(), TableWords(),
                             ListWords(), PictureWords(), DestinationWords()}) {
      for (const ControlWord& word : words) slots_[SlotFor(word.name)] = &word;
    }
  }

  const ControlWord* Find(std::string_view name) const { return slots_[SlotFor(name)]; }

 private:
  static constexpr unsigned kSlotBits = 11;
  static constexpr std::size_t kSlots = std::size_t{1} << kSlotBits;
  static constexpr std::uint32_t kGolden = 0x9E3779B1;  // Spreads neighbours (Knuth, section 6.4).

  // A few letters tell the words apart well enough, and are quicker than all.
  static std::size_t HashOf(std::string_view name) {
    const std::size_t last = name.size() - 1;
    auto hash = static_cast<std::uint32_t>(name.size());
    for (const std::size_t index :
         {std::min<std::size_t>(2, last), last - std::min<std::size_t>(1, last), last / 2, last,
          std::size_t{0}}) {
      hash = hash * 37 + static_cast<unsigned char>(name[index]);
    }
    return (hash * kGolden) >> (32U - kSlotBits);
  }

  // The word's slot, or the free one where it would stand.
  std::size_t SlotFor(std::string_view name) const {
    std::size_t slot = HashOf(name);
    while (slots_[slot] != nullptr && slots_[slot]->name != name) slot = (slot + 1) % kSlots;
    return slot;
  }

  std::array<const ControlWord*, kSlots> slots_{};
};

}  // namespace

const ControlWord* FindControlWord(std::string_view name) {
  static const WordIndex kIndex;
  // No word is longer; what is would take its time to hash.
  constexpr std::size_t kLongestWord = 32;
  return name.size() <= kLongestWord ? kIndex.Find(name) : nullptr;
}

}  // namespace tagsmith::rtf
