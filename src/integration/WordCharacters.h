#pragma once

#include <cstdint>

namespace tagsmith::integration {

/// What a character is to a word.
enum class CharacterClass : std::uint8_t {
  kOther,       ///< Ends a word.
  kLetter,      ///< Of a script that sets words apart.
  kMark,        ///< Belongs to the letter before it.
  kDigit,       ///< And what else makes a name of a word: the underscore.
  kApostrophe,  ///< Belongs to a word when it stands in it.
  kJoiner,      ///< As an apostrophe, without a width.
  kSoftHyphen,  ///< Neither ends a word nor is a part of its spelling.
  kUnspaced,    ///< A letter of a script that writes words without gaps.
};

/// The class of `codePoint`, after the general categories and the blocks of The Unicode Standard
/// (Scripts.txt); code points that are not assigned count as their neighbours.
CharacterClass ClassOf(char32_t codePoint);

}  // namespace tagsmith::integration
