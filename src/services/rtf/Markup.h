#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "services/rtf/Document.h"

// The small pieces that a page is put together from. All append UTF-8 to `out`.

namespace tagsmith::rtf {

constexpr std::string_view kLineEnd = "\r\n";

/// Text for an attribute's value or an element that shows none of its blanks: markup characters
/// become references, and what HTML 5 does not allow in a page (control characters, noncharacters)
/// is left out.
void AppendEscaped(std::string& out, std::string_view text);

/// Text of a paragraph: as `AppendEscaped`, and blanks that a browser would drop become no-break
/// spaces. `afterBlank` tells whether a blank now would be dropped, since nothing or another one
/// stands before it; the call brings it up to date.
void AppendText(std::string& out, std::string_view text, bool& afterBlank);

/// Whether nothing in `text` has a place in a page.
bool IsAllLeftOut(std::string_view text);

void AppendNumber(std::string& out, std::int64_t number);

/// A length in points, 72 to the inch: "36pt", "0.75pt".
void AppendPoints(std::string& out, std::int64_t twips);

/// "#0a0b0c". `colour` is none of kAbsent.
void AppendColour(std::string& out, Colour colour);

/// A name as a string of a style sheet (CSS Syntax 3, section 4.3.5), fit to stand in a style
/// attribute and in a style element.
void AppendCssString(std::string& out, std::string_view name);

/// Bytes of a file's name as a part of an address (RFC 3986, section 2).
void AppendPercentEncoded(std::string& out, std::string_view bytes);

/// Writes ` style="..."` into a tag, or nothing if no property comes. Call `Close` at the end.
class StyleAttribute {
 public:
  explicit StyleAttribute(std::string& out) : out_(out) {}

  void Add(std::string_view property, std::string_view value);
  void AddPoints(std::string_view property, std::int64_t twips);
  void AddColour(std::string_view property, Colour colour);
  void Close();

 private:
  void Begin(std::string_view property);

  std::string& out_;
  bool isOpen_ = false;
};

}  // namespace tagsmith::rtf
