#pragma once

#include <string>

#include "services/rtf/Document.h"

namespace tagsmith::rtf {

enum class Indents { kShown, kOfList };

/// Appends the attributes that give an element for a paragraph its look (direction and style), or
/// nothing for one that looks as usual. With kOfList, the left indents are the list's.
void AppendBlockAttributes(std::string& out, const ParagraphFormat& format, Indents indents);

}  // namespace tagsmith::rtf
