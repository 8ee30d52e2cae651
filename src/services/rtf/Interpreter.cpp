#include "services/rtf/Interpreter.h"

#include <algorithm>

#include "services/Utf8.h"
#include "services/rtf/CodePages.h"
#include "services/rtf/ControlWords.h"

namespace tagsmith::rtf {
namespace {

// What is nested deeper shares the state of the deepest group.
constexpr std::size_t kMostGroups = 500;
// The outermost group of the file, counted with the state around it.
constexpr std::size_t kOutermost = 2;

constexpr char32_t kPrivateSigns = 0xF000;
constexpr char32_t kReplacement = 0xFFFD;
constexpr int kMostTwips = 100'000;

constexpr bool IsEscaped(char symbol) { return symbol == '\\' || symbol == '{' || symbol == '}'; }

// Control characters that part words.
constexpr bool IsLineBreak(char32_t value) { return value == 10 || value == 11 || value == 13; }
constexpr bool IsSeparator(char32_t value) { return value == '\t' || IsLineBreak(value); }

constexpr bool IsHighSurrogate(char32_t value) { return value >= 0xD800 && value < 0xDC00; }
constexpr bool IsLowSurrogate(char32_t value) { return value >= 0xDC00 && value < 0xE000; }

}  // namespace

int TableDepthOf(const GroupState& state) {
  return std::max(state.tableLevel, state.isInTable ? 1 : 0);
}

int LimitedTwips(int twips) { return std::clamp(twips, -kMostTwips, kMostTwips); }

Interpreter::Interpreter(std::string_view rtf, const MultiByteDecoder& decoder, DocumentSink& sink)
    : fonts(sink),
      body(sink),
      sink_(sink),
      tokens_(rtf),
      bytes_(decoder),
      documentCodePage_(kWindowsLatin) {
  groups_.reserve(kMostGroups);
  groups_.emplace_back();
}

void Interpreter::Run() {
  sink_.Begin();
  while (!isDone_) {
    Token token = tokens_.Next();
    if (token.kind == TokenKind::kEnd) break;
    if (fallbackLeft_ == 0 || !IsFallback(token)) OnToken(token);
  }
  FlushBytes();
  Finish();
  sink_.End();
}

// Whether the token belongs to what stands behind a \u for readers without Unicode. Words and
// symbols count as one character, and the end of a group ends it all. A text that is longer loses
// its beginning.
bool Interpreter::IsFallback(Token& token) {
  switch (token.kind) {
    case TokenKind::kGroupStart:
    case TokenKind::kGroupEnd:
      fallbackLeft_ = 0;
      return false;
    case TokenKind::kText:
    case TokenKind::kBytes: {
      const auto wanted = static_cast<std::size_t>(fallbackLeft_);
      const std::size_t length = std::min(wanted, token.text.size());
      fallbackLeft_ -= static_cast<int>(length);
      token.text.remove_prefix(length);
      return token.text.empty();
    }
    default:
      --fallbackLeft_;
      return true;
  }
}

void Interpreter::OnToken(const Token& token) {
  switch (token.kind) {
    case TokenKind::kText:
      return OnText(token.text);
    case TokenKind::kBytes:
      for (const char byte : token.text) OnByte(static_cast<unsigned char>(byte));
      return;
    case TokenKind::kHexByte:
      return OnByte(static_cast<unsigned char>(token.parameter));
    case TokenKind::kSymbol:
      if (IsEscaped(token.text[0])) return OnText(token.text);
      break;
    default:
      break;
  }
  FlushBytes();
  switch (token.kind) {
    case TokenKind::kWord:
      return OnWord(token);
    case TokenKind::kSymbol:
      return OnSymbol(token.text[0]);
    case TokenKind::kBinary:
      return OnBinary(token.text);
    case TokenKind::kGroupStart:
      return OnGroupStart();
    default:
      return OnGroupEnd();
  }
}

void Interpreter::OnText(std::string_view text) {
  if (bytes_.IsInsideCharacter()) {
    OnByte(static_cast<unsigned char>(text[0]));
    text.remove_prefix(1);
  }
  FlushBytes();
  const SymbolSet symbols = Symbols();
  if (symbols == SymbolSet::kNone) {
    FlushSurrogate();
    PutText(text);
    return;
  }
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    PutSign(symbols, byte, kPrivateSigns + byte);
  }
}

void Interpreter::OnByte(unsigned char byte) {
  if (State().destination == Destination::kSkipped) return;
  if (IsSeparator(byte)) {
    FlushBytes();
    return PutCharacter(byte);
  }
  const SymbolSet symbols = Symbols();
  if (symbols != SymbolSet::kNone) return PutSign(symbols, byte, kPrivateSigns + byte);
  FlushSurrogate();
  bytes_.Add(CodePage(), byte);
}

void Interpreter::OnWord(const Token& token) {
  const bool isStarred = isStarred_;
  isStarred_ = false;
  if (State().destination == Destination::kSkipped) return;
  if (State().destination == Destination::kAnsiVersion && token.text != "ud") return;
  const ControlWord* const word = FindControlWord(token.text);
  if (word != nullptr) {
    word->handle(*this, {word->value, token.parameter, token.hasParameter});
  } else if (isStarred) {
    SkipGroup();
  }
}

void Interpreter::OnSymbol(char symbol) {
  switch (symbol) {
    case '*':
      isStarred_ = true;
      return;
    case '~':
      return PutCharacter(0x00A0);
    case '-':
      return PutCharacter(0x00AD);
    case '_':
      return PutCharacter(0x2011);
    case '\t':
      return PutMark(RunKind::kTab);
    case '\r':
    case '\n':
      return EndParagraph();
    default:  // Marks of indexes and formulas.
      return;
  }
}

void Interpreter::OnBinary(std::string_view bytes) {
  if (State().destination == Destination::kPicture) picture.AddBinary(bytes);
}

void Interpreter::OnGroupStart() {
  isStarred_ = false;
  if (groups_.size() == kMostGroups) {
    ++uncountedGroups_;
    return;
  }
  groups_.push_back(groups_.back());
  State().end = GroupEnd::kNothing;
}

void Interpreter::OnGroupEnd() {
  isStarred_ = false;
  if (uncountedGroups_ > 0) {
    if (uncountedGroups_ == skippedFrom_) {
      State().destination = unskipped_;
      skippedFrom_ = 0;
    }
    --uncountedGroups_;
  } else if (groups_.size() == kOutermost) {
    isDone_ = true;
  } else {
    CloseGroup();
  }
}

void Interpreter::CloseGroup() {
  const GroupState closed = State();
  groups_.pop_back();
  EndGroup(closed);
  const int openFields = State().field + 1;
  if (closed.field != State().field) fields_.resize(static_cast<std::size_t>(openFields));
}

void Interpreter::EndGroup(const GroupState& closed) {
  switch (closed.end) {
    case GroupEnd::kFontTable:
      fonts.Finish();
      if (State().characters.font == kAbsent) State().characters.font = DefaultFont();
      return;
    case GroupEnd::kTitle:
      return EndTitle();
    case GroupEnd::kInstruction:
      return EndInstruction(fields_[static_cast<std::size_t>(closed.instruction)]);
    case GroupEnd::kBookmark:
      if (IsShowing() && !captured_.empty()) body.AddBookmark(captured_);
      return;
    case GroupEnd::kPropertyName:
      isDescription_ = captured_ == "wzDescription";
      return;
    case GroupEnd::kPropertyValue:
      return EndPropertyValue();
    case GroupEnd::kPicture:
      return EndPicture();
    case GroupEnd::kShape:
      return EndShape();
    case GroupEnd::kObject:
      return EndObject();
    case GroupEnd::kNote:
      return body.EndNote(FormatOf(closed), State().characters);
    case GroupEnd::kTextBox:
      return body.EndBox(FormatOf(closed));
    case GroupEnd::kOldList:
      if (closed.listOverride == kAbsent) State().oldList = closed.oldList;
      return;
    default:
      return;
  }
}

void Interpreter::Finish() {
  while (groups_.size() > kOutermost) CloseGroup();
  body.End(FormatOf(State()));
}

bool Interpreter::IsShowing() const {
  const GroupState& state = groups_.back();
  return !state.isHidden && !state.isDeleted && !state.isHiddenInPages;
}

bool Interpreter::CanEnterDestination() const {
  return uncountedGroups_ == 0 && groups_.size() > kOutermost &&
         groups_.back().end == GroupEnd::kNothing;
}

bool Interpreter::EnterDestination(Destination destination, GroupEnd end) {
  if (!CanEnterDestination()) {
    SkipGroup();
    return false;
  }
  State().destination = destination;
  State().end = end;
  return true;
}

void Interpreter::EnterCapture(GroupEnd end) {
  if (EnterDestination(Destination::kCapture, end)) captured_.clear();
}

// The document itself is never skipped.
void Interpreter::SkipGroup() {
  if (groups_.size() <= kOutermost || State().destination == Destination::kSkipped) return;
  if (uncountedGroups_ > 0) {
    skippedFrom_ = uncountedGroups_;
    unskipped_ = State().destination;
  }
  State().destination = Destination::kSkipped;
}

void Interpreter::PutText(std::string_view text) {
  switch (State().destination) {
    case Destination::kBody:
      if (IsShowing() && !text.empty()) body.AddText(text, State().characters);
      return;
    case Destination::kFontTable:
      return fonts.AddText(text);
    case Destination::kColourTable:
      return colours.AddText(text);
    case Destination::kStyleSheet:
      return styles.AddText(text);
    case Destination::kPicture:
      return picture.AddHex(text);
    case Destination::kInstruction:
      fields_[static_cast<std::size_t>(State().instruction)].instruction += text;
      return;
    case Destination::kListText:
      return body.AddListText(text, State().characters);
    case Destination::kCapture:
      captured_ += text;
      return;
    default:
      return;
  }
}

void Interpreter::PutCharacter(char32_t codePoint) {
  FlushSurrogate();
  if (IsLineBreak(codePoint)) return PutMark(RunKind::kLineBreak);
  if (codePoint == '\t') return PutMark(RunKind::kTab);
  if (!IsTextCharacter(codePoint)) return;
  std::string text;
  AppendUtf8(text, codePoint);
  PutText(text);
}

void Interpreter::PutUnicode(char32_t value) {
  if (IsHighSurrogate(value)) {
    FlushSurrogate();
    highSurrogate_ = value;
  } else if (IsLowSurrogate(value)) {
    const char32_t high = highSurrogate_;
    highSurrogate_ = 0;
    PutCharacter(high == 0 ? kReplacement : 0x10000 + ((high - 0xD800) << 10U) + value - 0xDC00);
  } else if (value >= kPrivateSigns && value <= kPrivateSigns + 0xFF) {
    PutSign(Symbols(), static_cast<unsigned char>(value - kPrivateSigns), value);
  } else {
    PutCharacter(value);
  }
}

// A sign that has become a character of its own no longer needs the font.
void Interpreter::PutSign(SymbolSet set, unsigned char byte, char32_t otherwise) {
  const char32_t character = FromSymbolSet(set, byte);
  if (character == 0) return PutCharacter(otherwise);
  const int font = State().characters.font;
  State().characters.font = kAbsent;
  PutCharacter(character);
  State().characters.font = font;
}

void Interpreter::PutMark(RunKind kind) {
  if (State().destination != Destination::kBody || !IsShowing()) return;
  body.AddMark(kind, State().characters);
}

void Interpreter::FlushBytes() {
  if (!bytes_.IsEmpty()) PutText(bytes_.Take());
}

void Interpreter::FlushSurrogate() {
  if (highSurrogate_ == 0) return;
  highSurrogate_ = 0;
  PutCharacter(kReplacement);
}

int Interpreter::CodePage() const {
  const GroupState& state = groups_.back();
  int codePage = 0;
  if (state.destination == Destination::kFontTable) {
    codePage = fonts.NameCodePage();
  } else if (state.usesAssociatedFont && state.associatedFont != kAbsent) {
    codePage = fonts.At(state.associatedFont).codePage;
  } else {
    codePage = fonts.At(state.characters.font).codePage;
  }
  return codePage != 0 ? codePage : documentCodePage_;
}

SymbolSet Interpreter::Symbols() const {
  const GroupState& state = groups_.back();
  const bool isShown =
      state.destination == Destination::kBody || state.destination == Destination::kListText;
  if (!isShown) return SymbolSet::kNone;
  return fonts.At(state.characters.font).symbols;
}

ParagraphFormat Interpreter::FormatOf(const GroupState& state) {
  ParagraphFormat format = state.paragraph;
  format.tableDepth = TableDepthOf(state);
  format.list = lists.Place(state.listOverride, state.listLevel);
  if (format.list.list == kAbsent && state.oldList.isThere) {
    format.list = lists.Place(state.oldList, body.OldListBefore());
  } else {
    body.OldListBefore() = {};
  }
  return format;
}

// The mark of a hidden paragraph is hidden with it.
void Interpreter::EndParagraph() {
  if (State().destination != Destination::kBody || !IsShowing()) return;
  body.EndParagraph(FormatOf(State()));
}

void Interpreter::EndStartedParagraph() { body.EndStartedParagraph(FormatOf(State())); }

void Interpreter::EndCell(int depth) {
  if (State().destination == Destination::kBody) body.EndCell(FormatOf(State()), depth);
}

void Interpreter::EndRow(int depth) {
  if (State().destination == Destination::kBody) body.EndRow(FormatOf(State()), depth);
}

}  // namespace tagsmith::rtf
