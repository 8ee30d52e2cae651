#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What a Rich Text Format file says, in the terms of a page: the reader tells it to a
// `DocumentSink` piece by piece, so that nothing but what a page must know at once (a table's rows)
// is kept. Lengths are twips, 1440 to the inch; texts are valid UTF-8.

namespace tagsmith::rtf {

constexpr int kAbsent = -1;

/// 0xRRGGBB, or kAbsent for the page's own.
using Colour = std::int32_t;

enum class Raise : std::uint8_t { kNone, kSuper, kSub };

/// How a run of characters looks. All values are resolved: none is an index into the file's tables
/// but `font` and `link`, which count what the sink was told with `AddFont` and `AddLink`.
struct CharacterFormat {
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  bool smallCaps = false;
  bool allCaps = false;
  Raise raise = Raise::kNone;
  int font = kAbsent;
  int halfPoints = 24;  ///< The size of the font.
  Colour colour = kAbsent;
  Colour background = kAbsent;  ///< Highlighting or shading.
  int link = kAbsent;

  bool operator==(const CharacterFormat&) const = default;
};

enum class RunKind : std::uint8_t {
  kText,  ///< `text` of the paragraph from `start` on, `length` bytes. No control characters.
  kTab,
  kLineBreak,
  kPicture,   ///< `number` is the picture's.
  kNote,      ///< The mark of footnote or endnote `number`.
  kBookmark,  ///< Target of internal links; the name is `text` from `start` on.
};

struct Run {
  RunKind kind = RunKind::kText;
  std::size_t start = 0;
  std::size_t length = 0;
  int number = kAbsent;
  CharacterFormat format;
};

enum class Alignment : std::uint8_t { kLeft, kRight, kCentre, kJustified };

enum class Numbering : std::uint8_t {
  kBullet,
  kDecimal,
  kUpperRoman,
  kLowerRoman,
  kUpperLetter,
  kLowerLetter,
  kHidden,  ///< An item without a mark.
};

/// A paragraph's place in a list.
struct ListPlace {
  int list = kAbsent;  ///< Which list of the file; kAbsent for a paragraph outside lists.
  int level = 0;       ///< 0 to 8.
  Numbering numbering = Numbering::kBullet;
  int start = 1;  ///< The number that the list's first item at this level has.
};

struct ParagraphFormat {
  Alignment alignment = Alignment::kLeft;
  bool rightToLeft = false;
  int leftIndent = 0;
  int rightIndent = 0;
  int firstLineIndent = 0;  ///< Below 0 for a hanging indent.
  int spaceBefore = 0;
  int spaceAfter = 0;
  Colour background = kAbsent;
  int heading = 0;  ///< 1 to 6; 0 for ordinary text.
  ListPlace list;
  int tableDepth = 0;  ///< How many tables the paragraph stands in.
  bool pageBreakBefore = false;
};

/// One paragraph. The reader uses the same object again for the next one.
struct Paragraph {
  std::string text;
  std::vector<Run> runs;
  ParagraphFormat format;
};

enum class Merge : std::uint8_t { kNone, kFirst, kContinued };

struct Border {
  bool isThere = false;
  int width = 15;  ///< Twips.
  Colour colour = kAbsent;
};

enum class VerticalAlignment : std::uint8_t { kTop, kCentre, kBottom };

/// A cell's definition. Borders are top, right, bottom, left.
struct CellFormat {
  int rightEdge = 0;  ///< Twips from the left margin: its left edge is the one before's right edge.
  Merge across = Merge::kNone;
  Merge down = Merge::kNone;
  VerticalAlignment alignment = VerticalAlignment::kTop;
  Colour background = kAbsent;
  std::array<Border, 4> borders;
};

struct RowFormat {
  int leftEdge = 0;
  bool isHeader = false;
  Alignment alignment = Alignment::kLeft;
  std::vector<CellFormat> cells;  ///< May be fewer or more than the cells that came.
};

enum class PictureType : std::uint8_t { kPng, kJpeg, kOther };

struct Picture {
  PictureType type = PictureType::kOther;
  std::string_view kind;  ///< What a `kOther` is: "WMF", "EMF", "bitmap", "Macintosh picture", ...
  std::string bytes;      ///< The file's bytes; empty for `kOther`.
  int width = 0;          ///< Twips on the page, scaling included; 0 where it is not known.
  int height = 0;
  std::string description;  ///< The text for those who cannot see it; may be empty.
};

/// Takes a document in the order in which it is written. The reader keeps to these rules, however
/// damaged the file is: `Begin` comes first and `End` last; a number is told before it is used; a
/// note's paragraphs come between `BeginNote` and `EndNote`, which never nest and stand outside
/// any paragraph, before the paragraph that holds its mark. Paragraphs inside a cell come before
/// `EndCell`, cells before `EndRow`. `depth` is 1 for a table in the page and one more for each
/// table around it. A cell or row may end that had no paragraph.
class DocumentSink {
 public:
  virtual ~DocumentSink() = default;

  virtual void Begin() = 0;
  /// The title in the file's information group, at most once and before the first paragraph that
  /// follows it.
  virtual void SetTitle(std::string_view title) = 0;
  /// What font `number` is called, with its generic family as in CSS ("serif", "sans-serif",
  /// "monospace", "cursive", "fantasy") or empty.
  virtual void AddFont(int number, std::string_view name, std::string_view family) = 0;
  /// Where link `number` leads: an address, or "#" and the name of a bookmark.
  virtual void AddLink(int number, std::string_view target) = 0;
  virtual void AddPicture(int number, Picture&& picture) = 0;
  virtual void AddParagraph(const Paragraph& paragraph) = 0;
  virtual void EndCell(int depth) = 0;
  virtual void EndRow(int depth, const RowFormat& format) = 0;
  virtual void BeginNote(int number) = 0;
  virtual void EndNote() = 0;
  virtual void End() = 0;
};

}  // namespace tagsmith::rtf
