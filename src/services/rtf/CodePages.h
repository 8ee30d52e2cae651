#pragma once

namespace tagsmith::rtf {

constexpr int kWindowsLatin = 1252;
constexpr int kMacRoman = 10000;

/// The Windows code page of a font's character set (\fcharset; Rich Text Format 1.9.1, "Font
/// Table"); 0 for one that leaves it to the document, and for numbers that are none.
int CodePageOfCharset(int charset);

/// Whether `codePage` has characters of two bytes.
bool IsMultiByte(int codePage);

/// The code point of a byte in a code page of single bytes. Code pages that are not known count as
/// 1252; a byte without a character gives U+FFFD. 42, the page of symbol fonts, gives U+F000 plus
/// the byte.
char32_t FromCodePage(int codePage, unsigned char byte);

}  // namespace tagsmith::rtf
