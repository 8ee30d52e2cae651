#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "services/rtf/Body.h"
#include "services/rtf/ByteCollector.h"
#include "services/rtf/DocumentTables.h"
#include "services/rtf/GroupState.h"
#include "services/rtf/ListTables.h"
#include "services/rtf/PictureBuilder.h"
#include "services/rtf/Reader.h"
#include "services/rtf/Tokenizer.h"

namespace tagsmith::rtf {

/// Reads a file from its first group to its last. The control words' handlers work on it: they set
/// the state of the group and tell what the words bring.
class Interpreter {
 public:
  /// `rtf` begins with its outermost group.
  Interpreter(std::string_view rtf, const MultiByteDecoder& decoder, DocumentSink& sink);

  void Run();

  GroupState& State() { return groups_.back(); }
  /// Whether text that comes now is shown.
  bool IsShowing() const;

  /// Makes the group one whose text goes to `destination`. Where that cannot be (in a group that is
  /// a destination already) the group is skipped and the answer false.
  bool EnterDestination(Destination destination, GroupEnd end = GroupEnd::kOrdinary);
  /// Makes the group one whose text is kept for `end`.
  void EnterCapture(GroupEnd end);
  void SkipGroup();

  void PutCharacter(char32_t codePoint);
  /// A value of \u: a unit of UTF-16, or a code point that one cannot hold.
  void PutUnicode(char32_t value);
  /// A sign, by its byte in the fonts of `set`; `otherwise` where it is not known.
  void PutSign(SymbolSet set, unsigned char byte, char32_t otherwise);
  void PutMark(RunKind kind);
  /// Passes over the next \uc characters.
  void SkipFallback() { fallbackLeft_ = State().fallbackLength; }

  void EndParagraph();
  /// Ends the paragraph unless nothing is in it.
  void EndStartedParagraph();
  void EndCell(int depth);
  void EndRow(int depth);

  void SetDocumentCodePage(int codePage) { documentCodePage_ = codePage; }
  void SetDefaultFont(int number) { defaultFont_ = number; }
  int DefaultFont() const { return fonts.Find(defaultFont_); }

  void BeginField();
  void BeginInstruction();
  void BeginResult();
  void BeginPicture();
  void BeginShape();
  void BeginObject();
  /// Something stands for the object that is open.
  void SetObjectShown() { isObjectShown_ = true; }
  void BeginNote();
  void BeginBox();

  FontTable fonts;
  ColourTable colours;
  StyleSheet styles;
  ListTables lists;
  PictureBuilder picture;
  Body body;

 private:
  struct Field {
    std::string instruction;
    int link = kAbsent;
    bool isAnswered = false;  ///< Whether the result is to be left out.
  };

  // A shape's picture waits for its description.
  struct Shape {
    std::optional<Picture> picture;
    std::string description;
  };

  bool IsFallback(Token& token);
  void OnToken(const Token& token);
  void OnText(std::string_view text);
  void OnByte(unsigned char byte);
  void OnWord(const Token& token);
  void OnSymbol(char symbol);
  void OnBinary(std::string_view bytes);
  void OnGroupStart();
  void OnGroupEnd();
  void CloseGroup();
  void EndGroup(const GroupState& closed);
  void Finish();

  void PutText(std::string_view text);
  void FlushBytes();
  void FlushSurrogate();
  int CodePage() const;
  SymbolSet Symbols() const;
  ParagraphFormat FormatOf(const GroupState& state);

  void EndTitle();
  void EndInstruction(Field& field);
  void EndPropertyValue();
  void EndPicture();
  void TellPicture(Picture&& told);
  void TellShape(Shape& shape);
  void EndShape();
  void EndObject();

  bool CanEnterDestination() const;

  DocumentSink& sink_;
  Tokenizer tokens_;
  ByteCollector bytes_;
  std::vector<GroupState> groups_;
  std::vector<Field> fields_;
  std::string captured_;
  std::vector<Shape> shapes_;
  std::string description_;
  std::size_t uncountedGroups_ = 0;
  std::size_t skippedFrom_ = 0;  ///< The uncounted group that is skipped; 0 if none is.
  Destination unskipped_ = Destination::kBody;  ///< The destination around it.
  char32_t highSurrogate_ = 0;
  int fallbackLeft_ = 0;
  int documentCodePage_;
  int defaultFont_ = 0;
  int links_ = 0;
  int pictures_ = 0;
  bool isStarred_ = false;
  bool isPictureOpen_ = false;
  bool isDescription_ = false;
  bool isObjectShown_ = false;
  bool hasTitle_ = false;
  bool isDone_ = false;
};

/// How many tables a paragraph of the group stands in.
int TableDepthOf(const GroupState& state);

/// A length of a file, brought to what a page can have.
int LimitedTwips(int twips);

}  // namespace tagsmith::rtf
