#include "services/rtf/InlineWriter.h"

#include <cstddef>
#include <string_view>

#include "services/rtf/DeferredTags.h"
#include "services/rtf/Markup.h"

namespace tagsmith::rtf {
namespace {

constexpr std::string_view kTab = "&emsp;&emsp;&emsp;";
constexpr std::string_view kNoBreakSpace = "&nbsp;";

std::string_view TagName(std::size_t level, std::uint32_t value) {
  constexpr std::array<std::string_view, 4> kNames = {"b", "i", "u", "s"};
  constexpr std::size_t kFirstNamed = 2;
  const std::size_t place = level - kFirstNamed;
  if (place < kNames.size()) return kNames[place];
  return value == static_cast<std::uint32_t>(Raise::kSuper) ? "sup" : "sub";
}

bool ShowsBlanks(const CharacterFormat& format) {
  return format.underline || format.strike || format.background != kAbsent ||
         format.link != kAbsent;
}

}  // namespace

void InlineWriter::AppendRuns(std::string& out, const Paragraph& paragraph) {
  afterBlank_ = true;
  isLineEmpty_ = true;
  const std::string_view text = paragraph.text;
  for (const Run& run : paragraph.runs) {
    AppendRun(out, run, run.start < text.size() ? text.substr(run.start, run.length) : "");
  }
  CloseAll(out);
  if (isLineEmpty_) out += kNoBreakSpace;
}

void InlineWriter::AppendRun(std::string& out, const Run& run, std::string_view text) {
  switch (run.kind) {
    case RunKind::kText:
      AppendTextRun(out, run, text);
      return;
    case RunKind::kTab:
      SwitchTo(out, run.format);
      out += kTab;
      break;
    case RunKind::kLineBreak:
      out += "<br>";
      afterBlank_ = true;
      isLineEmpty_ = true;
      return;
    case RunKind::kPicture: {
      const std::string_view element = pictures_.Element(run.number);
      if (element.empty()) return;
      SwitchTo(out, run.format);
      out += element;
      break;
    }
    case RunKind::kNote: {
      const std::string mark = notes_.Mark(run.number);
      if (mark.empty()) return;
      CharacterFormat format = run.format;
      format.raise = Raise::kNone;  // The mark brings its own.
      format.link = kAbsent;
      SwitchTo(out, format);
      out += mark;
      break;
    }
    case RunKind::kBookmark:
      if (const auto id = targets_.PlaceBookmark(text)) {
        out += "<span id=\"";
        out += *id;
        out += "\"></span>";
      }
      return;
  }
  afterBlank_ = false;
  isLineEmpty_ = false;
}

void InlineWriter::AppendTextRun(std::string& out, const Run& run, std::string_view text) {
  if (IsAllLeftOut(text)) return;
  isLineEmpty_ = false;
  // A blank looks the same in all formats but some, and an element with nothing else is none.
  if (text == " " && format_ != run.format) {
    if (!ShowsBlanks(run.format)) {
      if (format_ && ShowsBlanks(*format_)) CloseAll(out);
      AppendText(out, text, afterBlank_);
      return;
    }
    afterBlank_ = true;
  }
  SwitchTo(out, run.format);
  styles_.CountText(open_[kSpanLevel] - 1, text.size());
  AppendText(out, text, afterBlank_);
}

InlineWriter::Levels InlineWriter::LevelsOf(const CharacterFormat& format) {
  Levels levels{};
  if (const auto link = targets_.LinkOf(format.link)) levels[kLinkLevel] = *link + 1;
  levels[kSpanLevel] = styles_.NumberOf(format) + 1;
  levels[kBold] = format.bold ? 1 : 0;
  levels[kItalic] = format.italic ? 1 : 0;
  // Browsers underline links themselves.
  levels[kUnderline] = format.underline && levels[kLinkLevel] == 0 ? 1 : 0;
  levels[kStrike] = format.strike ? 1 : 0;
  levels[kRaise] = static_cast<std::uint32_t>(format.raise);
  return levels;
}

void InlineWriter::SwitchTo(std::string& out, const CharacterFormat& format) {
  if (format_ == format) return;
  Open(out, LevelsOf(format));
  format_ = format;
}

void InlineWriter::CloseAll(std::string& out) {
  Open(out, {});
  format_.reset();
}

// Closes and opens no more than what differs.
void InlineWriter::Open(std::string& out, const Levels& wanted) {
  std::size_t common = 0;
  while (common < kLevelCount && open_[common] == wanted[common]) ++common;
  for (std::size_t level = kLevelCount; level > common; --level) {
    const std::uint32_t value = open_[level - 1];
    if (value == 0) continue;
    if (level - 1 <= kSpanLevel) {
      AppendDeferredEnd(out, level - 1 == kLinkLevel ? Deferred::kLink : Deferred::kSpan,
                        value - 1);
    } else {
      out += "</";
      out += TagName(level - 1, value);
      out += '>';
    }
  }
  for (std::size_t level = common; level < kLevelCount; ++level) {
    const std::uint32_t value = wanted[level];
    if (value == 0) continue;
    if (level <= kSpanLevel) {
      AppendDeferredStart(out, level == kLinkLevel ? Deferred::kLink : Deferred::kSpan, value - 1);
    } else {
      out += '<';
      out += TagName(level, value);
      out += '>';
    }
  }
  open_ = wanted;
}

}  // namespace tagsmith::rtf
