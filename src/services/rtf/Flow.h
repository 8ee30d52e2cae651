#pragma once

#include <string>
#include <vector>

#include "services/rtf/BlockStyle.h"
#include "services/rtf/Document.h"
#include "services/rtf/InlineWriter.h"
#include "services/rtf/ListWriter.h"
#include "services/rtf/TableBuffer.h"

namespace tagsmith::rtf {

/// Writes paragraphs one below the other, with the lists and tables around them: a page, or a note.
class Flow {
 public:
  /// `inlines` outlives the object.
  explicit Flow(InlineWriter& inlines) : inlines_(inlines) {}

  void AddParagraph(const Paragraph& paragraph);
  void EndCell(int depth);
  void EndRow(int depth, const RowFormat& format);

  /// The markup of all, whose tables and lists are ended.
  std::string Take();

 private:
  std::string& Out();
  void GoToDepth(int depth);
  void CloseTable();
  void AppendBlock(const Paragraph& paragraph, Indents indents);

  InlineWriter& inlines_;
  ListWriter lists_;
  std::string markup_;
  std::vector<TableBuffer> tables_;  ///< Those that are open, the outer ones first.
};

}  // namespace tagsmith::rtf
