#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "services/rtf/Document.h"
#include "services/rtf/TableRows.h"

namespace tagsmith::rtf {

/// Puts paragraphs together and tells them to the sink, with the tables, notes and text boxes they
/// stand in. The formats of paragraphs name table depths as the file does; what goes to the sink is
/// right even if the file's depths are not.
class Body {
 public:
  explicit Body(DocumentSink& sink);

  void AddText(std::string_view text, const CharacterFormat& format);
  /// A run without text: `number` is that of its picture.
  void AddMark(RunKind kind, const CharacterFormat& format, int number = kAbsent);
  void AddBookmark(std::string_view name);
  /// The mark of a list's item, which is shown if the paragraph stands in no list.
  void AddListText(std::string_view text, const CharacterFormat& format);
  /// Passes over the blanks that come next in a note.
  void SkipBlanks() { Current().skipsBlanks = Current().note != kAbsent; }

  void EndParagraph(const ParagraphFormat& format);
  /// Ends the paragraph unless nothing is in it.
  void EndStartedParagraph(const ParagraphFormat& format);
  /// Ends a cell of the table at `depth`, and the paragraph in it.
  void EndCell(ParagraphFormat format, int depth);
  void EndRow(ParagraphFormat format, int depth);

  /// The next paragraph begins a page.
  void BreakPage() { Current().breaksPage = true; }
  void BreakSection() { Current().breaksSection = true; }
  /// The section that has just begun needs no page of its own.
  void KeepSectionOnPage() { Current().breaksSection = false; }

  /// Begins a note in the middle of a paragraph; false within a note, where none can begin.
  bool BeginNote();
  /// Ends the note and puts its mark where it began.
  void EndNote(const ParagraphFormat& last, const CharacterFormat& mark);
  /// Begins a text box in the middle of a paragraph at `depth`: its paragraphs come first. False if
  /// too many boxes stand in each other.
  bool BeginBox(int depth);
  void EndBox(const ParagraphFormat& last);

  RowBuilder& Row(bool isNested) { return Current().tables.Row(isNested); }

  /// The place of the paragraph before this one in a list that it describes itself.
  ListPlace& OldListBefore() { return Current().oldList; }

  /// Ends what is still open.
  void End(const ParagraphFormat& last);

 private:
  // A text that is being read: the document, a note in it, a box.
  struct Flow {
    Flow(DocumentSink& sink, int outerDepth) : tables(sink, outerDepth) {}

    Paragraph paragraph;
    TableTracker tables;
    ListPlace oldList;
    int note = kAbsent;
    std::string listText;
    CharacterFormat listTextFormat;
    bool hasContent = false;  ///< Whether the paragraph has more than bookmarks.
    bool skipsBlanks = false;
    bool breaksPage = false;
    bool breaksSection = false;
  };

  Flow& Current() { return flows_.back(); }
  void AddRun(RunKind kind, const CharacterFormat& format);
  void ShowListText();
  void EndLastParagraph(const ParagraphFormat& format);
  void EndFlow(const ParagraphFormat& last);

  DocumentSink& sink_;
  std::vector<Flow> flows_;
  int notes_ = 0;
};

}  // namespace tagsmith::rtf
