#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "services/rtf/Document.h"
#include "services/rtf/Symbols.h"

// The tables at the head of a file (Rich Text Format 1.9.1, "Contents of an RTF File"). Texts come
// in pieces, as the file has them; a semicolon ends an entry.

namespace tagsmith::rtf {

struct Font {
  int codePage = 0;  ///< 0 for the document's.
  SymbolSet symbols = SymbolSet::kNone;
};

class FontTable {
 public:
  explicit FontTable(DocumentSink& sink) : sink_(sink) {}

  /// Begins the entry of font `number` of the file.
  void Begin(int number);
  void SetFamily(std::string_view family) { family_ = family; }
  void SetCodePage(int codePage) { codePage_ = codePage; }
  /// The code page of the name itself; 0 for the document's.
  int NameCodePage() const;
  void AddText(std::string_view text);
  /// Ends the entry that is open and tells it to the sink.
  void Finish();

  /// The sink's number for font `number` of the file; kAbsent if there is none.
  int Find(int number) const;
  /// The font with the sink's number `index`, which may be kAbsent.
  const Font& At(int index) const;

 private:
  DocumentSink& sink_;
  std::vector<Font> fonts_;
  std::unordered_map<int, int> indexes_;
  bool isOpen_ = false;
  int number_ = 0;
  int codePage_ = 0;
  std::string_view family_;
  std::string name_;
};

class ColourTable {
 public:
  /// One of the current entry's components: 0 red, 1 green, 2 blue.
  void SetComponent(int component, int value);
  void AddText(std::string_view text);
  /// kAbsent for entries that say nothing and numbers that are none.
  Colour At(int number) const;

 private:
  std::vector<Colour> colours_;
  std::array<Colour, 3> components_{};
  bool hasComponent_ = false;
};

/// What heading the paragraphs of a style are.
class StyleSheet {
 public:
  void BeginParagraphStyle(int number);
  void BeginOtherStyle();
  void SetBase(int number) { base_ = number; }
  void SetHeading(int heading) { heading_ = heading; }
  void AddText(std::string_view text);

  /// 1 to 6; 0 for a style that is none, or that is not there.
  int HeadingOf(int number) const;

 private:
  void Finish();

  std::unordered_map<int, int> headings_;
  int number_ = 0;
  int base_ = kAbsent;
  int heading_ = kAbsent;
  std::string name_;
};

/// The heading, 1 to 6 or 0 for none, for an outline level counted from 0.
int HeadingOfOutlineLevel(int level);

}  // namespace tagsmith::rtf
